#include "kit/TabStripView.h"

#include <exception>

#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

#include "kit/AccessibleText.h"
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
    follow();
}

QWidget* TabStripView::currentPanel() const { return stack_->currentWidget(); }

void TabStripView::follow() {
    following_ = true;
    const int tab = tabs_.current();
    bar_->setCurrentIndex(tab);
    if (tab < stack_->count()) stack_->setCurrentIndex(tab);
    following_ = false;
}

}  // namespace qv
