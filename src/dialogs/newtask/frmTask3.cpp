#include "dialogs/newtask/frmTask3.h"

namespace qv {

frmTask3::frmTask3() : Form("frmTask3") {}

void frmTask3::SetupDetails() {}
void frmTask3::setupActions() {}
void frmTask3::SetProject(const std::string&) {}
void frmTask3::SetProjectDefault() {}
void frmTask3::GetTaskCatTASK() {}

}  // namespace qv
