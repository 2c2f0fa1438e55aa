#include "kit/GridView.h"

#include <algorithm>
#include <exception>

#include <QFontMetrics>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>

#include "kit/AccessibleText.h"
#include "kit/GridDelegate.h"
#include "kit/GridModel.h"
#include "kit/Twips.h"
#include "toolkit/Grid.h"

namespace qv {

namespace {
// Space on a button cell presses it; other keys go to the table.
class ButtonKeys : public QObject {
public:
    ButtonKeys(QTableView* table, GridDelegate* delegate) : QObject(table), table_(table), delegate_(delegate) {}
    bool eventFilter(QObject* watched, QEvent* e) override {
        if (e->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(e)->key() == Qt::Key_Space) {
            const QModelIndex at = table_->currentIndex();
            if (at.isValid() && !(at.flags() & (Qt::ItemIsEditable | Qt::ItemIsUserCheckable))) {
                delegate_->press(at);
                return true;
            }
        }
        return QObject::eventFilter(watched, e);
    }

private:
    QTableView* table_;
    GridDelegate* delegate_;
};
}  // namespace

GridView::GridView(Grid& grid, QWidget* parent) : QWidget(parent), grid_(grid) {
    setObjectName(QString::fromStdString(grid.name()));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    caption_ = new QLabel(this);
    caption_->setObjectName(objectName() + ".caption");
    QFont bold = caption_->font();
    bold.setBold(true);
    caption_->setFont(bold);
    column->addWidget(caption_);

    table_ = new QTableView(this);
    table_->setObjectName(objectName() + ".table");
    // Rows of one height: the table never measures rows it doesn't show.
    // Set before the model comes, so a long grid's rows are sized once.
    table_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table_->verticalHeader()->setDefaultSectionSize(table_->fontMetrics().height() + 8);
    table_->verticalHeader()->hide();
    model_ = new GridModel(grid, table_);
    delegate_ = new GridDelegate(*model_, table_);
    table_->setModel(model_);
    table_->setItemDelegate(delegate_);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    table_->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                            QAbstractItemView::AnyKeyPressed | QAbstractItemView::SelectedClicked);
    table_->setWordWrap(false);
    table_->setAlternatingRowColors(true);
    table_->horizontalHeader()->setHighlightSections(false);
    table_->installEventFilter(new ButtonKeys(table_, delegate_));
    caption_->setBuddy(table_);
    column->addWidget(table_, 1);

    connect(model_, &GridModel::layoutFollowed, this, &GridView::followLayout);
    connect(model_, &QAbstractItemModel::modelReset, this, &GridView::followLayout);
    connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, this, &GridView::reportSelection);
    connect(model_, &QAbstractItemModel::modelReset, this, [this] {
        connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, this, &GridView::reportSelection,
                Qt::UniqueConnection);
    });
    followLayout();
}

int GridView::viewColumnOf(const std::string& key) const { return model_->viewColumn(grid_.columnOf(key)); }

void GridView::followLayout() {
    caption_->setText(QString::fromStdString(grid_.caption()));
    caption_->setVisible(!grid_.caption().empty());
    AccessibleText::set(table_, AccessibleText::clean(grid_.caption().empty() ? grid_.name() : grid_.caption()));
    QHeaderView* header = table_->horizontalHeader();
    for (int v = 0; v < model_->columnCount(); ++v) {
        const int width = grid_.column(model_->gridColumn(v)).width;
        if (width > 0) header->resizeSection(v, std::max(Twips::toPixels(width, this), readableWidth(v)));
    }
}

// Never narrower than its header or its first row: a narrow window
// scrolls sideways rather than cut the text.
int GridView::readableWidth(int viewColumn) const {
    const QFontMetrics fm = table_->fontMetrics();
    const QString caption = model_->headerData(viewColumn, Qt::Horizontal, Qt::DisplayRole).toString();
    int w = fm.horizontalAdvance(caption) + 3 * fm.averageCharWidth() + 8;
    if (model_->rowCount() > 0)
        w = std::max(w, fm.horizontalAdvance(model_->index(0, viewColumn).data().toString()) + 2 * fm.averageCharWidth() + 8);
    return w;
}

// The rows in the order the user picked them: rows still selected keep
// their place, new ones follow.
void GridView::reportSelection() {
    const QModelIndexList picked = table_->selectionModel()->selectedRows();
    std::vector<int32_t> now;
    for (const QModelIndex& i : picked) now.push_back(i.row());
    std::vector<int32_t> rows;
    for (int32_t r : grid_.selectedRows())
        if (std::find(now.begin(), now.end(), r) != now.end()) rows.push_back(r);
    for (int32_t r : now)
        if (std::find(rows.begin(), rows.end(), r) == rows.end()) rows.push_back(r);
    try {
        grid_.selectRows(rows);
    } catch (const std::exception& e) {
        qWarning("qv: %s: %s", grid_.name().c_str(), e.what());
    }
}

void GridView::resizeEvent(QResizeEvent* e) {
    QWidget::resizeEvent(e);
    if (widthPending_) return;
    widthPending_ = true;
    QTimer::singleShot(0, this, [this] { reportWidth(); });
}

// Once the resize is complete, the grid hears the table's width.
void GridView::reportWidth() {
    widthPending_ = false;
    try {
        grid_.userResized(Twips::fromPixels(table_->viewport()->width(), this));
    } catch (const std::exception& e) {
        qWarning("qv: %s: %s", grid_.name().c_str(), e.what());
    }
    followLayout();
}

}  // namespace qv
