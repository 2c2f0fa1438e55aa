#include "kit/SheetDelegate.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>

#include "kit/Shades.h"
#include "kit/SheetModel.h"
#include "kit/SheetWidget.h"
#include "kit/ToolCell.h"
#include "kit/ToolIcons.h"
#include "toolkit/Sheet.h"
#include "toolkit/Tool.h"

namespace qv {

namespace {

using Kind = ToolCell::Kind;

constexpr int kMargin = 4;
constexpr int kArrow = 14;

QString qs(const std::string& s) { return QString::fromStdString(s); }
QStyle* styleOf(const QWidget* w) { return w ? w->style() : QApplication::style(); }
bool is(int kind, Kind k) { return kind == static_cast<int>(k); }

bool clickable(int kind) {
    return is(kind, Kind::Button) || is(kind, Kind::MenuButton) || is(kind, Kind::Check) || is(kind, Kind::Option) ||
           is(kind, Kind::Icon);
}

bool edited(int kind) { return is(kind, Kind::TextBox) || is(kind, Kind::List) || is(kind, Kind::Hosted); }

// A list with a key is a split button: its face acts, its arrow opens the menu.
bool split(const Tool& t) { return !t.key().empty() && t.type() != ttDropSeparator; }

}  // namespace

SheetDelegate::SheetDelegate(SheetModel& model, SheetWidget& owner, QAbstractItemView& view)
    : QStyledItemDelegate(&view), model_(model), owner_(owner), view_(view) {}

int SheetDelegate::kindOf(const QModelIndex& index) const { return index.data(SheetModel::KindRole).toInt(); }

// A text or list tool: its caption on the left, its field on the right.
QRect SheetDelegate::fieldRect(const QRect& row) {
    const int left = row.left() + row.width() * 2 / 5;
    return {left, row.top() + 1, row.right() - left - kMargin + 1, row.height() - 2};
}

void SheetDelegate::paint(QPainter* p, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QStyleOptionViewItem opt = option;
    initStyleOption(&opt, index);
    const int kind = kindOf(index);
    if (is(kind, Kind::Separator)) return paintSeparator(p, opt);
    if (is(kind, Kind::Heading)) return paintHeading(p, opt);
    if (is(kind, Kind::Check) || is(kind, Kind::Option)) return paintIndicator(p, opt, is(kind, Kind::Option));
    if (edited(kind)) return paintField(p, opt, index);
    QStyle* style = styleOf(opt.widget);
    style->drawControl(QStyle::CE_ItemViewItem, &opt, p, opt.widget);
    if (is(kind, Kind::MenuButton)) {
        QStyleOption arrow = opt;
        arrow.rect = QRect(opt.rect.right() - kArrow - kMargin, opt.rect.top(), kArrow, opt.rect.height());
        style->drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, p, opt.widget);
    }
}

void SheetDelegate::paintSeparator(QPainter* p, const QStyleOptionViewItem& opt) const {
    const int y = opt.rect.center().y();
    p->save();
    p->setPen(opt.palette.color(QPalette::Mid));
    p->drawLine(opt.rect.left() + kMargin, y, opt.rect.right() - kMargin, y);
    p->restore();
}

void SheetDelegate::paintHeading(QPainter* p, const QStyleOptionViewItem& opt) const {
    p->fillRect(opt.rect, Shades::headingGround(opt.palette.color(QPalette::Base), opt.palette.color(QPalette::Text)));
    p->save();
    p->setFont(opt.font);
    const QRect text = opt.rect.adjusted(kMargin, 0, -kMargin, 0);
    styleOf(opt.widget)->drawItemText(p, text, Qt::AlignVCenter | Qt::AlignLeft, opt.palette,
                                      opt.state & QStyle::State_Enabled, opt.text, QPalette::Text);
    p->restore();
}

void SheetDelegate::paintIndicator(QPainter* p, const QStyleOptionViewItem& opt, bool radio) const {
    QStyle* style = styleOf(opt.widget);
    QStyleOptionViewItem panel = opt;
    panel.text.clear();
    panel.features &= ~QStyleOptionViewItem::HasCheckIndicator;
    panel.icon = QIcon();
    style->drawControl(QStyle::CE_ItemViewItem, &panel, p, opt.widget);

    const int w = style->pixelMetric(radio ? QStyle::PM_ExclusiveIndicatorWidth : QStyle::PM_IndicatorWidth, &opt, opt.widget);
    const int h = style->pixelMetric(radio ? QStyle::PM_ExclusiveIndicatorHeight : QStyle::PM_IndicatorHeight, &opt, opt.widget);
    QStyleOptionButton box;
    box.rect = QRect(opt.rect.left() + kMargin, opt.rect.center().y() - h / 2, w, h);
    box.state = (opt.state & QStyle::State_Enabled) | (opt.checkState == Qt::Checked ? QStyle::State_On : QStyle::State_Off);
    box.palette = opt.palette;
    style->drawPrimitive(radio ? QStyle::PE_IndicatorRadioButton : QStyle::PE_IndicatorCheckBox, &box, p, opt.widget);

    p->save();
    p->setFont(opt.font);
    const QRect text = opt.rect.adjusted(kMargin + w + 6, 0, -kMargin, 0);
    style->drawItemText(p, text, Qt::AlignVCenter | Qt::AlignLeft, opt.palette, opt.state & QStyle::State_Enabled,
                        opt.fontMetrics.elidedText(opt.text, Qt::ElideRight, text.width()), QPalette::Text);
    p->restore();
}

void SheetDelegate::paintField(QPainter* p, const QStyleOptionViewItem& opt, const QModelIndex& index) const {
    QStyle* style = styleOf(opt.widget);
    const bool enabled = opt.state & QStyle::State_Enabled;
    p->save();
    p->setFont(opt.font);
    const QRect field = fieldRect(opt.rect);
    const QRect caption(opt.rect.left() + kMargin, opt.rect.top(), field.left() - opt.rect.left() - 2 * kMargin,
                        opt.rect.height());
    style->drawItemText(p, caption, Qt::AlignVCenter | Qt::AlignLeft, opt.palette, enabled, opt.text, QPalette::Text);
    QStyleOptionFrame frame;
    frame.rect = field;
    frame.state = (opt.state & QStyle::State_Enabled) | QStyle::State_Sunken;
    frame.palette = opt.palette;
    frame.lineWidth = style->pixelMetric(QStyle::PM_DefaultFrameWidth, &frame, opt.widget);
    style->drawPrimitive(QStyle::PE_PanelLineEdit, &frame, p, opt.widget);
    const QString text = index.data(SheetModel::TextRole).toString();
    style->drawItemText(p, field.adjusted(kMargin, 0, -kMargin - kArrow, 0), Qt::AlignVCenter | Qt::AlignLeft,
                        opt.palette, enabled, opt.fontMetrics.elidedText(text, Qt::ElideRight, field.width() - kArrow),
                        QPalette::Text);
    p->restore();
}

QSize SheetDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    // Every row is as tall as the tallest kind, so the view can lay out a
    // long list without asking each row.
    const QFontMetrics& fm = option.fontMetrics;
    const int height = std::max(fm.height() + 8, 22);
    QFont bold = option.font;
    bold.setBold(true);
    const int text = QFontMetrics(bold).horizontalAdvance(index.data(Qt::DisplayRole).toString());
    return {text + 16 + 3 * kMargin + kArrow + (edited(kindOf(index)) ? fm.averageCharWidth() * 12 : 0), height};
}

QWidget* SheetDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const {
    Tool* t = model_.toolAt(index);
    if (!t) return nullptr;
    const int kind = kindOf(index);
    if (is(kind, Kind::TextBox)) return makeTextEditor(parent, t);
    if (is(kind, Kind::List)) return makeListEditor(parent, t);
    if (is(kind, Kind::Hosted)) return owner_.makeHosted(t->hostedControl(), parent);
    return nullptr;
}

QWidget* SheetDelegate::makeTextEditor(QWidget* parent, Tool* tool) const {
    auto* edit = new QLineEdit(parent);
    edit->setObjectName(ToolCell::objectNameOf(*tool, 0) + ".edit");
    // The dialog may refuse the edit when it starts, and judges it when it ends.
    bool allowed = true;
    owner_.forward(tool, [&allowed](Tool& t) { allowed = t.sheet()->beginEdit(t); });
    edit->setReadOnly(!allowed);
    SheetWidget* owner = &owner_;
    connect(edit, &QLineEdit::textEdited, edit, [owner, tool](const QString& text) {
        const std::string s = text.toStdString();
        owner->forward(tool, [&s](Tool& t) { t.sheet()->userEdit(t, s); });
    });
    return edit;
}

QWidget* SheetDelegate::makeListEditor(QWidget* parent, Tool* tool) const {
    auto* box = new QComboBox(parent);
    box->setObjectName(ToolCell::objectNameOf(*tool, 0) + ".list");
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    QStringList captions;
    for (const auto& i : tool->items()) captions << qs(i->caption());
    box->addItems(captions);
    SheetWidget* owner = &owner_;
    connect(box, &QComboBox::activated, box, [owner, tool](int index) {
        const auto& items = tool->items();
        if (index < 0 || index >= static_cast<int>(items.size())) return;
        owner->forward(items[static_cast<std::size_t>(index)].get(), [](Tool& t) { t.sheet()->click(t); });
    });
    connect(box->lineEdit(), &QLineEdit::textEdited, box, [owner, tool](const QString& text) {
        const std::string s = text.toStdString();
        owner->forward(tool, [&s](Tool& t) { t.sheet()->userEdit(t, s); });
    });
    return box;
}

void SheetDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    const QString text = index.data(SheetModel::TextRole).toString();
    if (auto* edit = qobject_cast<QLineEdit*>(editor); edit && edit->text() != text) {
        const bool modified = edit->isModified();
        edit->setText(text);
        edit->setModified(modified);
    }
    if (auto* box = qobject_cast<QComboBox*>(editor); box && box->currentText() != text) box->setEditText(text);
}

void SheetDelegate::setModelData(QWidget* editor, QAbstractItemModel*, const QModelIndex& index) const {
    auto* edit = qobject_cast<QLineEdit*>(editor);
    if (!edit || edit->isReadOnly() || !edit->isModified()) return;
    edit->setModified(false);
    if (Tool* t = model_.toolAt(index)) owner_.forward(t, [](Tool& x) { x.sheet()->endEdit(x); });
}

void SheetDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                         const QModelIndex&) const {
    editor->setGeometry(fieldRect(option.rect));
}

void SheetDelegate::click(Tool* tool) {
    owner_.forward(tool, [](Tool& t) { t.sheet()->click(t); });
}

void SheetDelegate::popupMenu(Tool* tool, const QRect& row) {
    QMenu menu(&view_);
    for (const auto& item : tool->items()) {
        if (item->type() == ttDropSeparator || item->type() == ttSeparator) {
            menu.addSeparator();
            continue;
        }
        QAction* a = menu.addAction(ToolIcons::icon(item->image()), qs(item->caption()));
        a->setObjectName(qs(item->key()));
        a->setEnabled(item->enabled());
        a->setVisible(item->visible());
        a->setToolTip(qs(item->tip()));
        a->setData(QVariant::fromValue(static_cast<void*>(item.get())));
    }
    QAction* chosen = menu.exec(view_.viewport()->mapToGlobal(row.bottomLeft()));
    if (chosen) click(static_cast<Tool*>(chosen->data().value<void*>()));
}

void SheetDelegate::activate(const QModelIndex& index) {
    Tool* t = model_.toolAt(index);
    if (!t || !(index.flags() & Qt::ItemIsEnabled)) return;
    const int kind = kindOf(index);
    if (is(kind, Kind::MenuButton) && !split(*t)) return popupMenu(t, view_.visualRect(index));
    if (clickable(kind)) return click(t);
    if (edited(kind)) view_.edit(index);
}

bool SheetDelegate::mouseReleased(const QPoint& at, const QRect& row, const QModelIndex& index) {
    Tool* t = model_.toolAt(index);
    const int kind = kindOf(index);
    if (!row.contains(at)) return false;
    if (is(kind, Kind::MenuButton)) {
        if (split(*t) && at.x() < row.right() - kArrow - 2 * kMargin) click(t);
        else popupMenu(t, row);
        return true;
    }
    if (clickable(kind)) {
        click(t);
        return true;
    }
    if (edited(kind)) {
        // Opened once the view is done with this click.
        QTimer::singleShot(0, &view_, [view = &view_, index = QPersistentModelIndex(index)] {
            if (index.isValid()) view->edit(index);
        });
        return true;
    }
    return false;
}

bool SheetDelegate::editorEvent(QEvent* event, QAbstractItemModel*, const QStyleOptionViewItem& option,
                                const QModelIndex& index) {
    Tool* t = model_.toolAt(index);
    if (!t || !(index.flags() & Qt::ItemIsEnabled)) return false;
    switch (event->type()) {
    case QEvent::MouseButtonRelease: {
        auto* me = static_cast<QMouseEvent*>(event);
        return me->button() == Qt::LeftButton && mouseReleased(me->position().toPoint(), option.rect, index);
    }
    case QEvent::MouseButtonDblClick:
        if (static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton) return false;
        owner_.forward(t, [](Tool& x) { x.sheet()->doubleClick(x); });
        return true;
    case QEvent::KeyPress: {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key != Qt::Key_Space && key != Qt::Key_Select) return false;
        activate(index);
        return true;
    }
    default: return false;
    }
}

}  // namespace qv
