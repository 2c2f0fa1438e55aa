#pragma once
// The keyword dictionary.

#include "store/DataSource.h"

namespace qv {

class clsKeywords : public DataSource {
public:
    clsKeywords();
    bool GetData(RecordsetPtr& rst);
};

}  // namespace qv
