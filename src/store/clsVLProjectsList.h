#pragma once
// The project list of the pickers.

#include "store/DataSource.h"

namespace qv {

class clsVLProjectsList : public DataSource {
public:
    clsVLProjectsList();
    bool GetData(RecordsetPtr& rst);
};

}  // namespace qv
