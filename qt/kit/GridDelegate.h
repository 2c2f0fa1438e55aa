#pragma once
// Paints and edits the cells of a GridModel: a text editor only for the
// cell being edited (the grid is in edit mode meanwhile), a push button
// painted in button cells whose click, or Space, goes to the grid.

#include <QStyledItemDelegate>

namespace qv {

class GridModel;

class GridDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    explicit GridDelegate(GridModel& model, QObject* parent = nullptr);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void destroyEditor(QWidget* editor, const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;

    // Presses the button of a cell, as a click on it does.
    void press(const QModelIndex& index) const;

private:
    [[nodiscard]] bool isButton(const QModelIndex& index) const;

    GridModel& model_;
};

}  // namespace qv
