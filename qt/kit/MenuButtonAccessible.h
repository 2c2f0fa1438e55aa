#pragma once
// What a screen reader works on a tool button that only opens a menu
// (the "Printing" list): Qt offers it a "show menu" action that does
// nothing for such a button, so this one opens the menu.

#include <QAccessibleWidget>

class QToolButton;

namespace qv {

class MenuButtonAccessible : public QAccessibleWidget {
public:
    explicit MenuButtonAccessible(QToolButton* button);

    [[nodiscard]] QString text(QAccessible::Text t) const override;
    // The menu is the button's one child, as a menu bar's menus are.
    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString& action) override;

    // Installs the factory that gives such buttons this interface (once).
    static void install();
};

}  // namespace qv
