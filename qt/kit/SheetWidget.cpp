#include "kit/SheetWidget.h"

#include <exception>

#include <QBoxLayout>
#include <QEvent>
#include <QLabel>
#include <QListView>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>
#include <QTimer>

#include "kit/OptionGroups.h"
#include "kit/AccessibleText.h"
#include "kit/Shades.h"
#include "kit/SheetDelegate.h"
#include "kit/SheetModel.h"
#include "kit/ToolCell.h"
#include "toolkit/Sheet.h"
#include "toolkit/Tool.h"

namespace qv {

SheetWidget::SheetWidget(Sheet& sheet, Style style, QWidget* parent, HostMaker maker)
    : QFrame(parent), sheet_(sheet), style_(style), hostMaker_(std::move(maker)), options_(new OptionGroups(this)) {
    setObjectName(QString::fromStdString(sheet.name()));
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->setSpacing(0);
    if (style_ == Style::List) {
        setFrameShape(QFrame::StyledPanel);
        buildTitle(outer);
        scroll_ = new QScrollArea(this);
        scroll_->setWidgetResizable(true);
        scroll_->setFrameShape(QFrame::NoFrame);
        scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        // The tools inside take the focus, and the area follows it; the area
        // itself is no Tab stop.
        scroll_->setFocusPolicy(Qt::NoFocus);
        outer->addWidget(scroll_, 1);
    }
    changed_ = EventLink(sheet.Changed, [this] { modelChanged(); });
    rebuild();
}

SheetWidget::~SheetWidget() = default;

void SheetWidget::buildTitle(QBoxLayout* outer) {
    title_ = new QLabel(this);
    title_->setObjectName(objectName() + ".title");
    title_->setTextFormat(Qt::PlainText);
    title_->setAutoFillBackground(true);
    title_->setContentsMargins(6, 3, 6, 3);
    QFont f = title_->font();
    f.setBold(true);
    title_->setFont(f);
    paintTitle();
    outer->addWidget(title_);
}

// The bar is the window's ground tinted with its text colour, so the
// title reads under any palette.
void SheetWidget::paintTitle() {
    if (!title_) return;
    QPalette p = palette();
    p.setColor(QPalette::Window, Shades::titleGround(p.color(QPalette::Window), p.color(QPalette::WindowText)));
    title_->setPalette(p);
}

void SheetWidget::changeEvent(QEvent* e) {
    QFrame::changeEvent(e);
    if (e->type() == QEvent::PaletteChange) paintTitle();
    if (e->type() == QEvent::FontChange || e->type() == QEvent::StyleChange) listMinimum_ = QSize();
}

QWidget* SheetWidget::makeHosted(const std::string& controlName, QWidget* parent) const {
    if (hostMaker_)
        if (QWidget* w = hostMaker_(controlName, parent)) return w;
    auto* missing = new QLabel(parent);
    missing->setObjectName(QString::fromStdString(controlName));
    return missing;
}

void SheetWidget::modelChanged() { scheduleSync(); }

void SheetWidget::scheduleSync() {
    if (pending_) return;
    pending_ = true;
    QTimer::singleShot(0, this, [this] { syncNow(); });
}

void SheetWidget::syncNow() {
    pending_ = false;
    if (shapeOfModel() == shape_) {
        refresh();
        return;
    }
    // A cell whose action is still on the stack must outlive it: rebuild
    // once the action has returned.
    if (forwarding_ == 0) rebuild();
}

std::vector<SheetWidget::Shape> SheetWidget::shapeOfModel() const {
    std::vector<Shape> shape;
    shape.reserve(sheet_.tools().size());
    for (const auto& t : sheet_.tools()) shape.push_back({t.get(), t->type(), t->items().size(), t->hostedControl()});
    return shape;
}

bool SheetWidget::owns(const Tool* tool) const {
    for (const auto& t : sheet_.tools()) {
        if (t.get() == tool) return true;
        for (const auto& i : t->items())
            if (i.get() == tool) return true;
    }
    return false;
}

void SheetWidget::forward(Tool* tool, const std::function<void(Tool&)>& action) {
    if (!owns(tool)) return;
    ++forwarding_;
    try {
        action(*tool);
    } catch (const std::exception& e) {
        // The logic traps its own faults; anything left must not end the program.
        qWarning("qv: %s: %s", sheet_.name().c_str(), e.what());
    }
    --forwarding_;
    scheduleSync();
}

void SheetWidget::rebuild() {
    cells_.clear();
    // No cell's action is on the stack here (rebuilds wait for that), so
    // the old cells can go at once and never linger beside the new ones.
    if (scroll_) delete scroll_->takeWidget();
    else delete body_;
    body_ = nullptr;
    shape_ = shapeOfModel();
    if (scroll_ && sheet_.tools().size() > kLongSheet) {
        showList();
    } else {
        dropList();
        buildBody();
    }
    // Each new cell has just shown its tool.
    refreshFrame();
    keepTabPlace();
}

void SheetWidget::keepTabPlace() {
    if (!isVisible()) return;  // built before its window shows: in place already
    QWidget* start = window();
    std::vector<QWidget*> stops;
    for (QWidget* w = start->nextInFocusChain(); w && w != start; w = w->nextInFocusChain())
        if (isAncestorOf(w) && (w->focusPolicy() & Qt::TabFocus)) stops.push_back(w);
    // The stop before the sheet: the order is set between Tab stops only.
    QWidget* previous = previousInFocusChain();
    while (previous && previous != start && (isAncestorOf(previous) || !(previous->focusPolicy() & Qt::TabFocus)))
        previous = previous->previousInFocusChain();
    if (!previous || previous == start) return;
    for (QWidget* w : stops) {
        QWidget::setTabOrder(previous, w);
        previous = w;
    }
}

void SheetWidget::showList() {
    scroll_->hide();
    if (list_) {
        list_->show();  // the refresh that follows brings its rows up to date
        return;
    }
    list_ = new QListView(this);
    list_->setObjectName(objectName() + ".list");
    list_->setFrameShape(QFrame::NoFrame);
    list_->setUniformItemSizes(true);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_->setSelectionMode(QAbstractItemView::NoSelection);
    list_->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                           QAbstractItemView::AnyKeyPressed);
    list_->setMouseTracking(true);
    list_->setAccessibleName(accessibleName());
    model_ = new SheetModel(sheet_, list_);
    delegate_ = new SheetDelegate(*model_, *this, *list_);
    list_->setItemDelegate(delegate_);
    list_->setModel(model_);
    connect(model_, &QAbstractItemModel::modelReset, this, &SheetWidget::openHostedEditors);
    openHostedEditors();
    static_cast<QBoxLayout*>(layout())->addWidget(list_, 1);
}

void SheetWidget::dropList() {
    if (!list_) return;
    if (scroll_) scroll_->show();
    delete list_;
    list_ = nullptr;
    model_ = nullptr;
    delegate_ = nullptr;
}

// A hosted control (a date box) is a widget of its own; a long list holds
// few, found from the tools rather than through a model read per row.
void SheetWidget::openHostedEditors() {
    for (int r = 0; r < model_->rowCount(); ++r) {
        const QModelIndex i = model_->index(r);
        if (!model_->toolAt(i)->hostedControl().empty()) list_->openPersistentEditor(i);
    }
}

void SheetWidget::buildBody() {
    body_ = new QWidget;
    body_->setObjectName(objectName() + ".body");
    const bool toolbar = style_ == Style::Toolbar;
    column_ = toolbar ? static_cast<QBoxLayout*>(new QHBoxLayout(body_)) : new QVBoxLayout(body_);
    column_->setContentsMargins(2, 2, 2, 2);
    column_->setSpacing(toolbar ? 2 : 0);
    iconRow_ = nullptr;
    if (!toolbar) column_->addStretch(1);
    buildCells(body_);
    if (toolbar && std::none_of(cells_.begin(), cells_.end(),
                                [](const ToolCell* c) { return c->kind() == ToolCell::Kind::Spacer; }))
        column_->addStretch(1);
    if (scroll_) scroll_->setWidget(body_);
    else layout()->addWidget(body_);
}

void SheetWidget::buildCells(QWidget* body) {
    const auto& tools = sheet_.tools();
    for (std::size_t i = 0; i < tools.size(); ++i) {
        auto* cell = new ToolCell(*tools[i], *this, static_cast<int>(i) + 1, body);
        cells_.push_back(cell);
        placeCell(column_, iconRow_, cell);
    }
}

void SheetWidget::placeCell(QBoxLayout* column, QBoxLayout*& iconRow, ToolCell* cell) {
    const bool toolbar = style_ == Style::Toolbar;
    if (cell->kind() == ToolCell::Kind::Spacer && toolbar) {
        column->addWidget(cell, 1);
        iconRow = nullptr;
        return;
    }
    // Consecutive image-only tools share one line.
    if (cell->kind() == ToolCell::Kind::Icon && !toolbar) {
        if (!iconRow) {
            iconRow = new QHBoxLayout;
            iconRow->setSpacing(2);
            column->insertLayout(insertAt(column), iconRow);
            iconRow->addStretch(1);
        }
        iconRow->insertWidget(iconRow->count() - 1, cell);
        return;
    }
    iconRow = nullptr;
    column->insertWidget(insertAt(column), cell);
}

// Lists keep their closing stretch last; tool bars are built whole.
int SheetWidget::insertAt(QBoxLayout* column) const {
    return style_ == Style::List ? column->count() - 1 : column->count();
}

void SheetWidget::refresh() {
    for (ToolCell* c : cells_) c->refresh();
    refreshFrame();
}

void SheetWidget::refreshFrame() {
    listMinimum_ = QSize();
    if (title_) {
        title_->setText(QString::fromStdString(sheet_.title()));
        title_->setVisible(!sheet_.title().empty());
    }
    const QString name = AccessibleText::clean(sheet_.title());
    AccessibleText::set(this, name);
    if (scroll_) AccessibleText::set(scroll_, name);
    if (list_) AccessibleText::set(list_, name);
    if (body_) body_->setEnabled(sheet_.enabled());
    options_->follow(cells_);
    if (model_) model_->follow();
}

QSize SheetWidget::minimumSizeHint() const {
    if (!scroll_ || (!body_ && !list_)) return QFrame::minimumSizeHint();
    // As wide as the widest tool (the list never scrolls sideways), and
    // tall enough for the title and a few tools.
    if (list_ && !listMinimum_.isValid()) listMinimum_ = listMinimumSize();
    const QSize content = list_ ? listMinimum_ : cellsMinimumSize();
    const int frame = 2 * frameWidth();
    const int bar = scroll_->verticalScrollBar()->sizeHint().width();
    const bool titled = title_ && !title_->isHidden();
    const int titleWidth = titled ? title_->minimumSizeHint().width() : 0;
    const int titleHeight = titled ? title_->sizeHint().height() : 0;
    return {std::max(content.width() + bar, titleWidth) + frame, titleHeight + content.height() + frame};
}

QSize SheetWidget::cellsMinimumSize() const {
    const QSize body = body_->minimumSizeHint();
    return {body.width(), std::min(body.height(), 3 * fontMetrics().height() + 12)};
}

// The widest of the first rows: measuring every row of a long list would
// cost what the list view saves.
QSize SheetWidget::listMinimumSize() const {
    int widest = 0;
    const int sampled = std::min(model_->rowCount(), static_cast<int>(kLongSheet));
    for (int r = 0; r < sampled; ++r) widest = std::max(widest, list_->sizeHintForIndex(model_->index(r)).width());
    const int row = model_->rowCount() > 0 ? list_->sizeHintForRow(0) : fontMetrics().height();
    return {widest, 3 * row};
}

bool SheetWidget::complete() const { return !pending_; }

ToolCell* SheetWidget::cellOf(const std::string& key) {
    if (pending_ || shapeOfModel() != shape_) syncNow();
    for (ToolCell* c : cells_)
        if (c->tool()->key() == key) return c;
    return nullptr;
}

bool SheetWidget::activate(const std::string& key) {
    if (pending_ || shapeOfModel() != shape_) syncNow();
    if (!model_) return false;
    const QModelIndex index = model_->indexOf(key);
    if (!index.isValid() || !(index.flags() & Qt::ItemIsEnabled)) return false;
    list_->scrollTo(index);
    list_->setCurrentIndex(index);
    delegate_->activate(index);
    return true;
}

}  // namespace qv
