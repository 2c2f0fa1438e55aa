#pragma once
// A Grid in a table: its caption above, rows painted as they scroll into
// view (so a long schedule costs what is visible), cells edited in place,
// buttons in cells, column widths from the grid's twips. The user's
// selection and the table's width go back to the grid.

#include <QWidget>

#include "kit/EventLink.h"

class QLabel;
class QTableView;

namespace qv {

class Grid;
class GridModel;
class GridDelegate;

class GridView : public QWidget {
    Q_OBJECT
public:
    explicit GridView(Grid& grid, QWidget* parent = nullptr);

    [[nodiscard]] Grid& grid() const { return grid_; }
    [[nodiscard]] QTableView* table() const { return table_; }
    [[nodiscard]] GridModel* model() const { return model_; }
    [[nodiscard]] GridDelegate* delegate() const { return delegate_; }
    // The view's column of a grid column key, or -1.
    [[nodiscard]] int viewColumnOf(const std::string& key) const;

protected:
    void resizeEvent(QResizeEvent* e) override;

private:
    void followLayout();
    [[nodiscard]] int readableWidth(int viewColumn) const;
    void reportSelection();
    void reportWidth();

    Grid& grid_;
    QLabel* caption_ = nullptr;
    QTableView* table_ = nullptr;
    GridModel* model_ = nullptr;
    GridDelegate* delegate_ = nullptr;
    bool widthPending_ = false;
};

}  // namespace qv
