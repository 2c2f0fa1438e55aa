#include "kit/GridDelegate.h"

#include <exception>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>

#include "kit/GridModel.h"
#include "toolkit/Grid.h"

namespace qv {

namespace {
// Enter commits the cell (the delegate sees it first) and goes no further:
// the dialog's own Enter is not meant for a cell being typed in.
class CellEnter : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* e) override {
        if (e->type() == QEvent::KeyPress) {
            const int key = static_cast<QKeyEvent*>(e)->key();
            if (key == Qt::Key_Return || key == Qt::Key_Enter) return true;
        }
        return QObject::eventFilter(watched, e);
    }
};
}  // namespace

GridDelegate::GridDelegate(GridModel& model, QObject* parent) : QStyledItemDelegate(parent), model_(model) {}

bool GridDelegate::isButton(const QModelIndex& index) const {
    const int c = model_.gridColumn(index.column());
    return c >= 0 && model_.grid().column(c).style == Grid::CellStyle::Button;
}

void GridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    if (!isButton(index)) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionButton button;
    button.rect = option.rect.adjusted(1, 1, -1, -1);
    button.text = index.data(Qt::DisplayRole).toString();
    button.state = QStyle::State_Enabled | QStyle::State_Raised;
    if (option.state & QStyle::State_HasFocus) button.state |= QStyle::State_HasFocus;
    const QWidget* w = option.widget;
    (w ? w->style() : QApplication::style())->drawControl(QStyle::CE_PushButton, &button, painter, w);
}

QWidget* GridDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                    const QModelIndex& index) const {
    const int c = model_.gridColumn(index.column());
    if (c < 0 || isButton(index)) return nullptr;
    try {
        model_.grid().beginEdit(index.row(), c);
    } catch (const std::exception& e) {
        qWarning("qv: %s", e.what());
        return nullptr;
    }
    auto* editor = new QLineEdit(parent);
    editor->setObjectName("cellEditor");
    editor->setFrame(false);
    editor->installEventFilter(new CellEnter(editor));
    return editor;
}

// A cell left without a commit (Escape, focus lost to a cancel) ends edit mode.
void GridDelegate::destroyEditor(QWidget* editor, const QModelIndex& index) const {
    Grid& grid = model_.grid();
    if (grid.editing() && grid.activeRow() == index.row() && grid.activeColumn() == model_.gridColumn(index.column()))
        grid.cancelEdit();
    QStyledItemDelegate::destroyEditor(editor, index);
}

bool GridDelegate::editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                               const QModelIndex& index) {
    if (!isButton(index)) return QStyledItemDelegate::editorEvent(event, model, option, index);
    if (event->type() == QEvent::MouseButtonRelease) {
        auto* me = static_cast<QMouseEvent*>(event);
        if (me->button() == Qt::LeftButton && option.rect.contains(me->position().toPoint())) press(index);
        return true;
    }
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Space || key == Qt::Key_Select) {
            press(index);
            return true;
        }
    }
    return false;
}

void GridDelegate::press(const QModelIndex& index) const {
    const int c = model_.gridColumn(index.column());
    if (c < 0) return;
    try {
        model_.grid().clickCellButton(index.row(), c);
    } catch (const std::exception& e) {
        qWarning("qv: %s", e.what());
    }
}

}  // namespace qv
