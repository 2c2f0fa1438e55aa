#include "kit/ViewFactory.h"

#include "kit/GenericFormView.h"
#include "toolkit/Form.h"

namespace qv {

void ViewFactory::add(const std::string& formName, Maker maker) { makers_[formName] = std::move(maker); }

FormView* ViewFactory::make(Form& form) const {
    if (auto it = makers_.find(form.name()); it != makers_.end())
        if (FormView* v = it->second(form)) return v;
    return new GenericFormView(form);
}

}  // namespace qv
