#include "kit/TabSheetView.h"

#include "toolkit/Sheet.h"

namespace qv {

TabSheetView::TabSheetView(Sheet& sheet, QWidget* parent) : QTabWidget(parent), sheet_(sheet) {
    setObjectName(QString::fromStdString(sheet.name()));
    changed_ = EventLink(sheet.Changed, [this] { followModel(); });
    connect(this, &QTabWidget::currentChanged, this, &TabSheetView::userChose);
}

void TabSheetView::addPage(QWidget* page) {
    const int index = count();
    if (index >= sheet_.count()) return;
    following_ = true;
    addTab(page, QString::fromStdString(sheet_.at(index + 1).caption()));
    following_ = false;
    followModel();
}

void TabSheetView::followModel() {
    following_ = true;
    for (int i = 0; i < count() && i < sheet_.count(); ++i)
        if (sheet_.at(i + 1).checked() && currentIndex() != i) setCurrentIndex(i);
    following_ = false;
}

void TabSheetView::userChose(int index) {
    if (following_ || index < 0 || index >= sheet_.count()) return;
    Tool& option = sheet_.at(index + 1);
    if (!option.checked()) sheet_.click(option);
    followModel();
}

}  // namespace qv
