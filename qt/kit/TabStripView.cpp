#include "kit/TabStripView.h"

#include <exception>
#include <utility>

#include <QEvent>
#include <QStackedWidget>
#include <QTabBar>
#include <QTimer>
#include <QVBoxLayout>

#include "kit/AccessibleText.h"
#include "kit/TabPlace.h"
#include "toolkit/TabStrip.h"

namespace qv {

TabStripView::TabStripView(TabStrip& tabs, QWidget* parent) : QWidget(parent), tabs_(tabs) {
    setObjectName(QString::fromStdString(tabs.name()));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    bar_ = new QTabBar(this);
    bar_->setObjectName(objectName() + ".bar");
    bar_->setExpanding(false);
    QStringList names;
    for (const std::string& caption : tabs.captions()) {
        bar_->addTab(QString::fromStdString(caption));
        names << AccessibleText::clean(caption);
    }
    // The strip is named by its pages; each tab by its caption.
    bar_->setAccessibleName(names.join(QStringLiteral(", ")));
    column->addWidget(bar_);
    stack_ = new QStackedWidget(this);
    column->addWidget(stack_, 1);
    connect(bar_, &QTabBar::currentChanged, this, [this](int tab) {
        if (following_ || tab < 0) return;
        try {
            tabs_.userSwitch(tab);
        } catch (const std::exception& e) {
            qWarning("qv: %s: %s", tabs_.name().c_str(), e.what());
        }
        follow();  // the dialog may not have switched
    });
    changed_ = EventLink(tabs.Changed, [this] { follow(); });
}

void TabStripView::addPanel(QWidget* panel) {
    stack_->addWidget(panel);
    waiting_.emplace_back();
    follow();
}

void TabStripView::addPanel(PanelMaker make) {
    auto* holder = new QWidget(stack_);
    (new QVBoxLayout(holder))->setContentsMargins(0, 0, 0, 0);
    stack_->addWidget(holder);
    waiting_.push_back(std::move(make));
    if (painted_) QTimer::singleShot(0, this, [this] { makeWaiting(); });
    follow();
}

bool TabStripView::complete() const {
    for (const auto& make : waiting_)
        if (make) return false;
    return true;
}

void TabStripView::makePanel(int tab) {
    if (tab < 0 || tab >= static_cast<int>(waiting_.size()) || !waiting_[static_cast<std::size_t>(tab)]) return;
    auto make = std::exchange(waiting_[static_cast<std::size_t>(tab)], nullptr);
    QWidget* holder = stack_->widget(tab);
    holder->layout()->addWidget(make(holder));
    TabPlace::keep(holder);
}

void TabStripView::makeWaiting() {
    for (int t = 0; t < static_cast<int>(waiting_.size()); ++t) makePanel(t);
}

// The pages out of view wait for the window's first paint.
void TabStripView::showEvent(QShowEvent* e) {
    QWidget::showEvent(e);
    if (watching_ || painted_ || complete()) return;
    watching_ = true;
    window()->installEventFilter(this);
}

bool TabStripView::eventFilter(QObject* watched, QEvent* e) {
    if (watching_ && watched == window() && e->type() == QEvent::Paint) {
        watched->removeEventFilter(this);
        watching_ = false;
        painted_ = true;
        // Made once the paint is done.
        QTimer::singleShot(0, this, [this] { makeWaiting(); });
    }
    return QWidget::eventFilter(watched, e);
}

QWidget* TabStripView::currentPanel() const { return stack_->currentWidget(); }

void TabStripView::follow() {
    following_ = true;
    const int tab = tabs_.current();
    makePanel(tab);
    bar_->setCurrentIndex(tab);
    if (tab < stack_->count()) stack_->setCurrentIndex(tab);
    following_ = false;
}

}  // namespace qv
