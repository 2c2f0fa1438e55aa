#pragma once
// One widget for any property sheet: it draws the sheet's tools and keeps
// them in step with the model both ways. A short sheet gets one cell widget
// per tool; a long one (thousands of keywords) is a list view whose rows are
// painted as they scroll into view. Model changes are gathered and applied
// once the event loop is free; user actions go straight to the sheet.

#include <functional>
#include <string>
#include <vector>

#include <QFrame>

#include "kit/EventLink.h"

class QBoxLayout;
class QLabel;
class QListView;
class QModelIndex;
class QScrollArea;

namespace qv {

class Sheet;
class OptionGroups;
class SheetDelegate;
class SheetModel;
class Tool;
class ToolCell;

class SheetWidget : public QFrame {
    Q_OBJECT
public:
    enum class Style { List, Toolbar };
    // Builds the widget of a control hosted inside a tool (a date box).
    using HostMaker = std::function<QWidget*(const std::string& controlName, QWidget* parent)>;

    explicit SheetWidget(Sheet& sheet, Style style = Style::List, QWidget* parent = nullptr, HostMaker maker = {});
    ~SheetWidget() override;

    [[nodiscard]] Sheet& sheet() const { return sheet_; }
    [[nodiscard]] Style style() const { return style_; }
    [[nodiscard]] QWidget* makeHosted(const std::string& controlName, QWidget* parent) const;

    [[nodiscard]] QSize minimumSizeHint() const override;

    // Whether the view shows the model as it is (no change waits).
    [[nodiscard]] bool complete() const;
    // Applies pending model changes now.
    void syncNow();
    // The cell of a tool, or nullptr (tests and views; a long sheet has none).
    [[nodiscard]] ToolCell* cellOf(const std::string& key);
    // The list of a long sheet, or nullptr.
    [[nodiscard]] QListView* listView() const { return list_; }
    // Works a shown, enabled tool of a long sheet as Space on its row does.
    bool activate(const std::string& key);

    // Sheets longer than this are painted rows, not widgets.
    static constexpr std::size_t kLongSheet = 40;

    // Runs a user action on a tool that is still in the sheet, then follows
    // whatever the model did. A stale tool is ignored.
    void forward(Tool* tool, const std::function<void(Tool&)>& action);

protected:
    void changeEvent(QEvent* e) override;

private:
    struct Shape {
        const Tool* tool;
        int type;
        std::size_t items;
        std::string hosted;
        bool operator==(const Shape&) const = default;
    };

    void modelChanged();
    void scheduleSync();
    [[nodiscard]] std::vector<Shape> shapeOfModel() const;
    [[nodiscard]] bool owns(const Tool* tool) const;
    void rebuild();
    // New cells join the window's Tab order at its end: put them back where
    // the sheet stands.
    void keepTabPlace();
    void refresh();
    // All but the cells: the title, the names, the options, the long list.
    void refreshFrame();
    void buildTitle(QBoxLayout* outer);
    void paintTitle();
    void buildBody();
    void buildCells(QWidget* body);
    void showList();
    void dropList();
    void openHostedEditors();
    [[nodiscard]] QSize cellsMinimumSize() const;
    [[nodiscard]] QSize listMinimumSize() const;
    void placeCell(QBoxLayout* column, QBoxLayout*& iconRow, ToolCell* cell);
    [[nodiscard]] int insertAt(QBoxLayout* column) const;

    Sheet& sheet_;
    Style style_;
    HostMaker hostMaker_;
    EventLink changed_;
    QLabel* title_ = nullptr;
    QScrollArea* scroll_ = nullptr;
    QWidget* body_ = nullptr;
    std::vector<ToolCell*> cells_;
    OptionGroups* options_;
    QBoxLayout* column_ = nullptr;
    QBoxLayout* iconRow_ = nullptr;
    QListView* list_ = nullptr;
    SheetModel* model_ = nullptr;
    SheetDelegate* delegate_ = nullptr;
    std::vector<Shape> shape_;
    // A long list's minimum size, measured once per change of its rows or
    // looks: layouts ask for it many times while a window opens.
    mutable QSize listMinimum_;
    bool pending_ = false;
    int forwarding_ = 0;
};

}  // namespace qv
