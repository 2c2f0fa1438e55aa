#pragma once
// A tab strip over a sheet of options: one tab per option, in order, the
// checked option's page in view. Choosing a tab clicks its option, so the
// dialog's logic decides; the model's choice moves the tab.

#include <QTabWidget>

#include "kit/EventLink.h"

namespace qv {

class Sheet;

class TabSheetView : public QTabWidget {
    Q_OBJECT
public:
    explicit TabSheetView(Sheet& sheet, QWidget* parent = nullptr);

    // The page of the next option, captioned with its caption.
    void addPage(QWidget* page);

private:
    void followModel();
    void userChose(int index);

    Sheet& sheet_;
    EventLink changed_;
    bool following_ = false;
};

}  // namespace qv
