#include "kit/MenuButtonAccessible.h"

#include <QMenu>
#include <QMetaObject>
#include <QToolButton>

namespace qv {

namespace {

QToolButton* menuOnlyButton(QObject* o) {
    auto* b = qobject_cast<QToolButton*>(o);
    return b && b->menu() && b->popupMode() == QToolButton::InstantPopup ? b : nullptr;
}

QAccessibleInterface* factory(const QString& className, QObject* o) {
    if (className != QLatin1String("QToolButton")) return nullptr;
    QToolButton* b = menuOnlyButton(o);
    return b ? new MenuButtonAccessible(b) : nullptr;
}

}  // namespace

MenuButtonAccessible::MenuButtonAccessible(QToolButton* button) : QAccessibleWidget(button, QAccessible::ButtonMenu) {}

QString MenuButtonAccessible::text(QAccessible::Text t) const {
    QString s = QAccessibleWidget::text(t);
    if (t == QAccessible::Name && s.isEmpty())
        s = static_cast<QToolButton*>(widget())->text().remove(QLatin1Char('&')).trimmed();
    return s;
}

int MenuButtonAccessible::childCount() const { return static_cast<QToolButton*>(widget())->menu() ? 1 : 0; }

QAccessibleInterface* MenuButtonAccessible::child(int index) const {
    QMenu* menu = static_cast<QToolButton*>(widget())->menu();
    return index == 0 && menu ? QAccessible::queryAccessibleInterface(menu) : nullptr;
}

int MenuButtonAccessible::indexOfChild(const QAccessibleInterface* child) const {
    QMenu* menu = static_cast<QToolButton*>(widget())->menu();
    return child && menu && child->object() == menu ? 0 : -1;
}

QStringList MenuButtonAccessible::actionNames() const {
    return widget()->isEnabled() ? QStringList{showMenuAction(), pressAction()} : QStringList{};
}

void MenuButtonAccessible::doAction(const QString& action) {
    if (!widget()->isEnabled() || (action != showMenuAction() && action != pressAction())) return;
    // The menu runs its own loop; the reader's call must not wait for it.
    QMetaObject::invokeMethod(widget(), "showMenu", Qt::QueuedConnection);
}

void MenuButtonAccessible::install() {
    static const bool installed = [] {
        QAccessible::installFactory(&factory);
        return true;
    }();
    (void)installed;
}

}  // namespace qv
