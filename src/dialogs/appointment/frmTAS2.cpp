#include "dialogs/appointment/frmTAS2.h"

namespace qv {

frmTAS2::frmTAS2() : Form("frmTAS2") {}

void frmTAS2::SetupDetails() {}

}  // namespace qv
