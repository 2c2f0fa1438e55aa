#pragma once
// One widget for any property sheet: it draws the sheet's tools and keeps
// them in step with the model both ways. Model changes are gathered and
// applied once the event loop is free, so refilling a long list costs one
// rebuild; user actions go straight to the sheet.

#include <functional>
#include <string>
#include <vector>

#include <QFrame>

#include "kit/EventLink.h"

class QBoxLayout;
class QLabel;
class QScrollArea;

namespace qv {

class Sheet;
class Tool;
class ToolCell;

class SheetWidget : public QFrame {
    Q_OBJECT
public:
    enum class Style { List, Toolbar };
    // Builds the widget of a control hosted inside a tool (a date box).
    using HostMaker = std::function<QWidget*(const std::string& controlName, QWidget* parent)>;

    explicit SheetWidget(Sheet& sheet, Style style = Style::List, QWidget* parent = nullptr);
    ~SheetWidget() override;

    [[nodiscard]] Sheet& sheet() const { return sheet_; }
    [[nodiscard]] Style style() const { return style_; }
    void setHostMaker(HostMaker maker);
    [[nodiscard]] QWidget* makeHosted(const std::string& controlName, QWidget* parent) const;

    [[nodiscard]] QSize minimumSizeHint() const override;

    // Whether every tool of the sheet has its cell (a long list grows while idle).
    [[nodiscard]] bool complete() const;
    // Applies pending model changes now.
    void syncNow();
    // The cell of a tool, or nullptr (tests and views).
    [[nodiscard]] ToolCell* cellOf(const std::string& key);

    // Runs a user action on a tool that is still in the sheet, then follows
    // whatever the model did. A stale tool is ignored.
    void forward(Tool* tool, const std::function<void(Tool&)>& action);

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
    void refresh();
    void buildTitle(QBoxLayout* outer);
    QWidget* buildBody();
    void buildCells(QWidget* body, std::size_t count);
    void scheduleMoreCells();
    void buildRemainingCells(std::size_t count);
    void placeCell(QBoxLayout* column, QBoxLayout*& iconRow, ToolCell* cell);
    [[nodiscard]] int insertAt(QBoxLayout* column) const;

    static constexpr std::size_t kFirstCells = 40;
    static constexpr std::size_t kMoreCells = 250;
    static constexpr int kGrowthDelayMs = 15;  // lets the window paint first

    Sheet& sheet_;
    Style style_;
    HostMaker hostMaker_;
    EventLink changed_;
    QLabel* title_ = nullptr;
    QScrollArea* scroll_ = nullptr;
    QWidget* body_ = nullptr;
    std::vector<ToolCell*> cells_;
    QBoxLayout* column_ = nullptr;
    QBoxLayout* iconRow_ = nullptr;
    std::size_t built_ = 0;      // tools of the sheet that have their cell
    unsigned generation_ = 0;    // a rebuild drops the growth of the old body
    std::vector<Shape> shape_;
    bool pending_ = false;
    int forwarding_ = 0;
};

}  // namespace qv
