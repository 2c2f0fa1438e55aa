#include "kit/TabSheetView.h"

#include <utility>

#include <QTimer>
#include <QVBoxLayout>

#include "toolkit/Sheet.h"

namespace qv {

TabSheetView::TabSheetView(Sheet& sheet, QWidget* parent) : QTabWidget(parent), sheet_(sheet) {
    setObjectName(QString::fromStdString(sheet.name()));
    changed_ = EventLink(sheet.Changed, [this] { followModel(); });
    connect(this, &QTabWidget::currentChanged, this, &TabSheetView::userChose);
}

void TabSheetView::addPage(PageMaker maker) {
    const int index = count();
    if (index >= sheet_.count()) return;
    following_ = true;
    auto* holder = new QWidget(this);
    auto* layout = new QVBoxLayout(holder);
    layout->setContentsMargins(0, 0, 0, 0);
    addTab(holder, QString::fromStdString(sheet_.at(index + 1).caption()));
    makers_.push_back(std::move(maker));
    following_ = false;
    followModel();
    if (makers_.size() == 1) QTimer::singleShot(kIdleDelayMs, this, &TabSheetView::buildWaiting);
}

QWidget* TabSheetView::page(int index) {
    QWidget* holder = widget(index);
    if (!holder || index >= static_cast<int>(makers_.size())) return holder;
    if (PageMaker make = std::exchange(makers_[static_cast<std::size_t>(index)], nullptr))
        holder->layout()->addWidget(make(holder));
    return holder;
}

void TabSheetView::buildWaiting() {
    for (int i = 0; i < count(); ++i) page(i);
}

void TabSheetView::followModel() {
    following_ = true;
    for (int i = 0; i < count() && i < sheet_.count(); ++i)
        if (sheet_.at(i + 1).checked()) {
            page(i);
            if (currentIndex() != i) setCurrentIndex(i);
        }
    following_ = false;
}

void TabSheetView::userChose(int index) {
    if (following_ || index < 0 || index >= sheet_.count()) return;
    page(index);
    Tool& option = sheet_.at(index + 1);
    if (!option.checked()) sheet_.click(option);
    followModel();
}

}  // namespace qv
