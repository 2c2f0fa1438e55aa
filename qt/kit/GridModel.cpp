#include "kit/GridModel.h"

#include <exception>

#include "kit/QtText.h"
#include "toolkit/Grid.h"

namespace qv {

GridModel::GridModel(Grid& grid, QObject* parent) : QAbstractTableModel(parent), grid_(grid) {
    shown_ = grid.shownColumns();
    rows_ = grid.rowCount();
    changed_ = EventLink(grid.Changed, [this] { gridChanged(); });
    cell_ = EventLink(grid.CellChanged, [this](int32_t r, int32_t c) {
        const int v = viewColumn(c);
        if (v >= 0 && r < rows_) emit dataChanged(index(r, v), index(r, v));
    });
}

bool GridModel::ticked(const std::string& text) { return !text.empty() && text != "0" && text != "False"; }

int GridModel::gridColumn(int viewColumn) const {
    return viewColumn >= 0 && viewColumn < static_cast<int>(shown_.size()) ? shown_[static_cast<size_t>(viewColumn)] : -1;
}

int GridModel::viewColumn(int gridColumn) const {
    for (size_t i = 0; i < shown_.size(); ++i)
        if (shown_[i] == gridColumn) return static_cast<int>(i);
    return -1;
}

// Another shape resets the views; the same shape repaints what is visible.
void GridModel::gridChanged() {
    std::vector<int> shown;
    for (int32_t c : grid_.shownColumns()) shown.push_back(c);
    const int rows = grid_.rowCount();
    if (shown != shown_ || rows != rows_) {
        beginResetModel();
        shown_ = std::move(shown);
        rows_ = rows;
        endResetModel();
    } else if (rows_ > 0 && !shown_.empty()) {
        emit dataChanged(index(0, 0), index(rows_ - 1, static_cast<int>(shown_.size()) - 1));
    }
    emit headerDataChanged(Qt::Horizontal, 0, static_cast<int>(shown_.size()) - 1);
    emit layoutFollowed();
}

int GridModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    const int c = gridColumn(index.column());
    if (!index.isValid() || c < 0 || index.row() >= grid_.rowCount()) return {};
    const auto style = grid_.column(c).style;
    switch (role) {
    case Qt::DisplayRole:
        if (style == Grid::CellStyle::CheckBox) return {};
        return QString::fromStdString(grid_.displayText(index.row(), c));
    case Qt::EditRole: return QString::fromStdString(grid_.cell(index.row(), c));
    case Qt::CheckStateRole:
        if (style != Grid::CellStyle::CheckBox) return {};
        return ticked(grid_.cell(index.row(), c)) ? Qt::Checked : Qt::Unchecked;
    case Qt::TextAlignmentRole:
        return style == Grid::CellStyle::Button ? QVariant(Qt::AlignCenter) : QVariant();
    case Qt::AccessibleTextRole: return spokenText(index.row(), c);
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return grid_.column(c).tip.empty() ? QVariant() : QString::fromStdString(grid_.column(c).tip);
    default: return {};
    }
}

// A check box says its column (its state is its checked state), a button
// what it does, an empty cell its column; the rest read as shown.
QString GridModel::spokenText(int row, int column) const {
    const Grid::Column& col = grid_.column(column);
    const QString caption = QString::fromStdString(col.caption);
    if (col.style == Grid::CellStyle::CheckBox) return caption;
    if (col.style == Grid::CellStyle::Button && !col.tip.empty()) return QString::fromStdString(col.tip);
    const QString shown = QString::fromStdString(grid_.displayText(row, column));
    return shown.isEmpty() ? qtr("%1: none").arg(caption) : shown;
}

bool GridModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    const int c = gridColumn(index.column());
    if (!index.isValid() || c < 0 || index.row() >= grid_.rowCount()) return false;
    try {
        if (role == Qt::CheckStateRole)
            return grid_.updateCell(index.row(), c, value.toInt() == Qt::Checked ? "True" : "False");
        if (role != Qt::EditRole) return false;
        const std::string text = value.toString().toStdString();
        if (grid_.editing() && grid_.activeRow() == index.row() && grid_.activeColumn() == c)
            return grid_.commitEdit(text);
        return grid_.updateCell(index.row(), c, text);
    } catch (const std::exception& e) {
        qWarning("qv: %s: %s", grid_.name().c_str(), e.what());
        return false;
    }
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
    const int c = gridColumn(index.column());
    if (!index.isValid() || c < 0) return Qt::NoItemFlags;
    Qt::ItemFlags f = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    switch (grid_.column(c).style) {
    case Grid::CellStyle::Edit: return f | Qt::ItemIsEditable;
    case Grid::CellStyle::CheckBox: return f | Qt::ItemIsUserCheckable;
    case Grid::CellStyle::Button: return f;
    }
    return f;
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole) return {};
    if (orientation == Qt::Vertical) return section + 1;
    const int c = gridColumn(section);
    return c < 0 ? QVariant() : QString::fromStdString(grid_.column(c).caption);
}

}  // namespace qv
