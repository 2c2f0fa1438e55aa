#pragma once
// A TabStrip over its panels: the tab bar with the strip's captions (their
// "&" letters are the keyboard's way in) and a stack of one panel per tab.
// A tab the user picks goes to the model; the panel shown follows the
// model's current tab.

#include <QWidget>

#include "kit/EventLink.h"

class QStackedWidget;
class QTabBar;

namespace qv {

class TabStrip;

class TabStripView : public QWidget {
    Q_OBJECT
public:
    explicit TabStripView(TabStrip& tabs, QWidget* parent = nullptr);

    // The panel of a tab, in the tabs' order.
    void addPanel(QWidget* panel);
    [[nodiscard]] QTabBar* bar() const { return bar_; }
    [[nodiscard]] QWidget* currentPanel() const;

private:
    void follow();

    TabStrip& tabs_;
    QTabBar* bar_ = nullptr;
    QStackedWidget* stack_ = nullptr;
    EventLink changed_;
    bool following_ = false;
};

}  // namespace qv
