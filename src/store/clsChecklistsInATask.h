#pragma once
// The checklist linked to a task, for the host and the dialogs.

#include "store/DataSource.h"

namespace qv {

class clsChecklistsInATask : public DataSource {
public:
    clsChecklistsInATask();
    bool GetDataKEY(RecordsetPtr& rst);
};

}  // namespace qv
