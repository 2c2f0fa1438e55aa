#pragma once
// A dialog view made of named pieces of its form, one above the other: the
// small dialogs (Add Project, Add Keyword, the checklist picker and editor)
// are each a recipe of pieces.

#include <string>
#include <vector>

#include "kit/FormView.h"

namespace qv {

class StackedView : public FormView {
    Q_OBJECT
public:
    enum class Piece { Label, Sheet, Toolbar, Editor, DateBox };
    struct Part {
        Piece piece;
        std::string name;
        int stretch = 0;
    };
    struct Recipe {
        std::vector<Part> parts;
        QSize minimumTwips;
        QSize defaultTwips;
    };

    StackedView(Form& form, Recipe recipe, QWidget* parent = nullptr);

    [[nodiscard]] QSize minimumTwips() const override { return recipe_.minimumTwips; }
    [[nodiscard]] QSize defaultTwips() const override { return recipe_.defaultTwips; }

private:
    QWidget* build(const Part& part);

    Recipe recipe_;
};

}  // namespace qv
