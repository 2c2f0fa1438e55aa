#pragma once
// A tab strip over a sheet of options: one tab per option, in order, the
// checked option's page in view. Choosing a tab clicks its option, so the
// dialog's logic decides; the model's choice moves the tab. Pages out of
// view are built once the window has painted, or when chosen.

#include <functional>
#include <vector>

#include <QTabWidget>

#include "kit/EventLink.h"

namespace qv {

class Sheet;

class TabSheetView : public QTabWidget {
    Q_OBJECT
public:
    explicit TabSheetView(Sheet& sheet, QWidget* parent = nullptr);

    using PageMaker = std::function<QWidget*(QWidget* parent)>;

    // The page of the next option, captioned with its caption.
    void addPage(PageMaker maker);
    // The page at index, built now if it was still waiting.
    QWidget* page(int index);

private:
    void followModel();
    void userChose(int index);
    void buildWaiting();

    static constexpr int kIdleDelayMs = 15;  // lets the window paint first

    std::vector<PageMaker> makers_;  // empty once built
    Sheet& sheet_;
    EventLink changed_;
    bool following_ = false;
};

}  // namespace qv
