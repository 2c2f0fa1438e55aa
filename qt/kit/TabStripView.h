#pragma once
// A TabStrip over its panels: the tab bar with the strip's captions (their
// "&" letters are the keyboard's way in) and a stack of one panel per tab.
// A tab the user picks goes to the model; the panel shown follows the
// model's current tab.
//
// A panel may be made later: the shown tab's at once, the others once the
// window has painted (or when their tab comes forward first), so a window
// shows before the pages out of view are built.

#include <functional>
#include <vector>

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
    // The panel of the next tab, made by `make` inside the holder it gets.
    using PanelMaker = std::function<QWidget*(QWidget* holder)>;
    void addPanel(PanelMaker make);
    // Whether every panel is made.
    [[nodiscard]] bool complete() const;
    [[nodiscard]] QTabBar* bar() const { return bar_; }
    [[nodiscard]] QWidget* currentPanel() const;

protected:
    void showEvent(QShowEvent* e) override;
    bool eventFilter(QObject* watched, QEvent* e) override;

private:
    void follow();
    // The panel of a tab, made now if it still waits.
    void makePanel(int tab);
    void makeWaiting();

    TabStrip& tabs_;
    QTabBar* bar_ = nullptr;
    QStackedWidget* stack_ = nullptr;
    EventLink changed_;
    bool following_ = false;
    std::vector<PanelMaker> waiting_;  // by tab; empty once made
    bool watching_ = false;  // for the window's first paint
    bool painted_ = false;
};

}  // namespace qv
