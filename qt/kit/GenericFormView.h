#pragma once
// The view of a form that has none of its own: its sheets, one above the
// other, the tool-bar sheet (smtActions) last.

#include "kit/FormView.h"

namespace qv {

class GenericFormView : public FormView {
    Q_OBJECT
public:
    explicit GenericFormView(Form& form, QWidget* parent = nullptr);
};

}  // namespace qv
