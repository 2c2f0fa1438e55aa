#pragma once
// The checklist linked to a task, for the host and the dialogs.

#include "Export.h"
#include "store/DataSource.h"

namespace qv {

class QV_EXPORT clsChecklistsInATask : public DataSource {
public:
    clsChecklistsInATask();
    bool GetDataKEY(RecordsetPtr& rst);
};

}  // namespace qv
