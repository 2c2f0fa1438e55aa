#pragma once
// A Grid as a Qt table model: its shown columns in their places, the cells
// as the grid shows them (check boxes, buttons, text), the raw cell for
// editing. Edits and checks go back through the grid's update path, so its
// rules decide. Model changes to one cell repaint that cell only.

#include <vector>

#include <QAbstractTableModel>

#include "kit/EventLink.h"

namespace qv {

class Grid;

class GridModel : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit GridModel(Grid& grid, QObject* parent = nullptr);

    [[nodiscard]] Grid& grid() const { return grid_; }
    // The grid's column shown at a view column, and back (-1 when hidden).
    [[nodiscard]] int gridColumn(int viewColumn) const;
    [[nodiscard]] int viewColumn(int gridColumn) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    // Whether a cell's text reads as a ticked box.
    [[nodiscard]] static bool ticked(const std::string& text);

signals:
    // The grid's columns or widths changed (views size their sections).
    void layoutFollowed();

private:
    void gridChanged();
    [[nodiscard]] QString spokenText(int row, int column) const;

    Grid& grid_;
    std::vector<int> shown_;
    int rows_ = 0;
    EventLink changed_, cell_;
};

}  // namespace qv
