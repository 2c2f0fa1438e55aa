#pragma once
// The checklists offered by the picker.

#include "store/DataSource.h"

namespace qv {

class clsCheckLists : public DataSource {
public:
    clsCheckLists();
    bool GetDataKEY(RecordsetPtr& rst);
};

}  // namespace qv
