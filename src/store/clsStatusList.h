#pragma once
// Read-only lists: its sets refuse writes.

#include "store/DataSource.h"

namespace qv {

class clsStatusList : public DataSource {
public:
    clsStatusList();
    bool GetDataKEY(RecordsetPtr& rst);
};

}  // namespace qv
