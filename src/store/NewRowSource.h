#pragma once
// The writers: GetData opens the SetSQL text for adding rows, GetDataKEY
// the SetSQLKey text for the rows to change.

#include "store/DataSource.h"

namespace qv {

class NewRowSource : public DataSource {
public:
    void SetSQLKey(const Query& SQL) { sqlKey_ = SQL; }
    bool GetData(RecordsetPtr& rst);
    bool GetDataKEY(RecordsetPtr& rst);

protected:
    explicit NewRowSource(const char* className);

private:
    Query sqlKey_;
};

}  // namespace qv
