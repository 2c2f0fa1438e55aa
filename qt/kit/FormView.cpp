#include "kit/FormView.h"

namespace qv {

FormView::FormView(Form& form, QWidget* parent) : QWidget(parent), form_(form) {}

}  // namespace qv
