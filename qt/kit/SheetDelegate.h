#pragma once
// Paints and works the rows of a long sheet: buttons, check boxes, options,
// headings, separators and labels are painted, not built; a text or list
// tool gets an editor only while it is being edited. Clicks, Space and
// double clicks go to the sheet as they would from a tool's own cell.

#include <QStyledItemDelegate>

class QAbstractItemView;

namespace qv {

class SheetModel;
class SheetWidget;
class Tool;

class SheetDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    SheetDelegate(SheetModel& model, SheetWidget& owner, QAbstractItemView& view);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;

    // Works a row as Space on it does: clicks it, opens its menu or its editor.
    void activate(const QModelIndex& index);

private:
    [[nodiscard]] int kindOf(const QModelIndex& index) const;
    [[nodiscard]] static QRect fieldRect(const QRect& row);
    void paintIndicator(QPainter* p, const QStyleOptionViewItem& opt, bool radio) const;
    void paintField(QPainter* p, const QStyleOptionViewItem& opt, const QModelIndex& index) const;
    void paintHeading(QPainter* p, const QStyleOptionViewItem& opt) const;
    void paintSeparator(QPainter* p, const QStyleOptionViewItem& opt) const;
    void click(Tool* tool);
    void popupMenu(Tool* tool, const QRect& row);
    bool mouseReleased(const QPoint& at, const QRect& row, const QModelIndex& index);
    QWidget* makeTextEditor(QWidget* parent, Tool* tool) const;
    QWidget* makeListEditor(QWidget* parent, Tool* tool) const;

    SheetModel& model_;
    SheetWidget& owner_;
    QAbstractItemView& view_;
};

}  // namespace qv
