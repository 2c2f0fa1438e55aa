#pragma once
// Builds the generic pieces of a form's view from the form's named
// controls; a name the form does not have gives an empty, hidden piece, so
// a view never depends on a control being there.

#include <string>

#include "kit/SheetWidget.h"

class QWidget;

namespace qv {

class Form;

class PaneBuilder {
public:
    PaneBuilder(Form& form, QWidget* parent) : form_(form), parent_(parent) {}

    // A sheet; tools that host a date box show the box's view.
    [[nodiscard]] QWidget* sheet(const std::string& name, SheetWidget::Style style = SheetWidget::Style::List) const;
    [[nodiscard]] QWidget* editor(const std::string& name) const;
    [[nodiscard]] QWidget* label(const std::string& name) const;
    [[nodiscard]] QWidget* dateBox(const std::string& name) const;
    // A label over an editor over a tool-bar sheet (any may be missing).
    [[nodiscard]] QWidget* editorPane(const std::string& labelName, const std::string& editorName,
                                      const std::string& toolbarName = {}) const;

private:
    [[nodiscard]] QWidget* missing(const std::string& name) const;

    Form& form_;
    QWidget* parent_;
};

}  // namespace qv
