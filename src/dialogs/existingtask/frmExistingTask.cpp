#include "dialogs/existingtask/frmExistingTask.h"

namespace qv {

frmExistingTask::frmExistingTask() : Form("frmExistingTask") {}

void frmExistingTask::SetSize() {}
void frmExistingTask::SetupDetails() {}

}  // namespace qv
