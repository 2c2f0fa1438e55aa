#pragma once
// Maps a form's name to the view that shows it; a form with no view of its
// own gets the generic one, which lays out all of its sheets.

#include <functional>
#include <map>
#include <string>

#include "Export.h"

class QWidget;

namespace qv {

class Form;
class FormView;

class QV_EXPORT ViewFactory {
public:
    using Maker = std::function<FormView*(Form&)>;

    void add(const std::string& formName, Maker maker);
    [[nodiscard]] FormView* make(Form& form) const;
    [[nodiscard]] bool has(const std::string& formName) const { return makers_.count(formName) > 0; }

private:
    std::map<std::string, Maker> makers_;
};

}  // namespace qv
