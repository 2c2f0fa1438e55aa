#include "kit/SplitterView.h"

#include <algorithm>
#include <exception>

#include <QDataStream>
#include <QEvent>
#include <QIODevice>
#include <QSplitterHandle>
#include <QTimer>
#include <QVBoxLayout>

#include "kit/Twips.h"
#include "toolkit/Form.h"
#include "toolkit/Splitter.h"

namespace qv {

SplitterView* SplitterView::addTo(QBoxLayout& layout, Form& form, const char* name,
                                  const Arrangement& arrangement, const std::function<QWidget*(int)>& pane,
                                  QWidget* parent) {
    Splitter* model = form.splitter(name);
    if (!model) return nullptr;
    auto* view = new SplitterView(*model, arrangement.columns, arrangement.footer, parent);
    for (int i = 0; i < model->paneCount(); ++i) view->setPaneWidget(i, pane(i));
    if (auto* columns = qobject_cast<QSplitter*>(view->widget(0)))
        for (int c = 0; c < columns->count() && c < static_cast<int>(arrangement.stretch.size()); ++c)
            columns->setStretchFactor(c, arrangement.stretch[static_cast<std::size_t>(c)]);
    layout.addWidget(view, 1);
    return view;
}

namespace {
constexpr quint32 kBlobMagic = 0x51564c31;  // marks our own arrangement

// A pane's place: never smaller than the model's limit, nor than what its
// contents need to show whole.
class PaneHolder : public QWidget {
public:
    using QWidget::QWidget;
    void setLimit(QSize limit) {
        limit_ = limit;
        updateGeometry();
    }
    [[nodiscard]] QSize minimumSizeHint() const override {
        return QWidget::minimumSizeHint().expandedTo(limit_);
    }

private:
    QSize limit_;
};
}  // namespace

SplitterView::SplitterView(Splitter& model, std::vector<std::vector<int>> columns, std::vector<int> footer,
                           QWidget* parent)
    : QSplitter(Qt::Vertical, parent), model_(model), columns_(std::move(columns)), footer_(std::move(footer)) {
    setObjectName(QString::fromStdString(model.name()));
    setChildrenCollapsible(false);
    buildPanes();
    applyLimits();
    save_ = EventLink(model.AboutToSave, [this] {
        const QByteArray blob = saveAll();
        model_.setLayoutState(std::string(blob.constData(), static_cast<size_t>(blob.size())));
    });
    load_ = EventLink(model.LayoutLoaded, [this] {
        const std::string& b = model_.layoutState();
        restoreAll(QByteArray(b.data(), static_cast<qsizetype>(b.size())));
    });
    changed_ = EventLink(model.Changed, [this] { followModel(); });
    const std::string& blob = model.layoutState();
    restored_ = !blob.empty() && restoreAll(QByteArray(blob.data(), static_cast<qsizetype>(blob.size())));
    if (!restored_) applySizes();
    watchHandles();
}

void SplitterView::buildPanes() {
    holders_.assign(static_cast<size_t>(model_.paneCount()), nullptr);
    auto makeHolder = [this](int index, QSplitter* into) {
        if (index < 0 || index >= model_.paneCount()) return;
        auto* holder = new PaneHolder(into);
        holder->setObjectName(QString::fromStdString(model_.pane(index).name) + ".pane");
        auto* l = new QVBoxLayout(holder);
        l->setContentsMargins(0, 0, 0, 0);
        into->addWidget(holder);
        holders_[static_cast<size_t>(index)] = holder;
    };
    body_ = new QSplitter(Qt::Horizontal, this);
    body_->setChildrenCollapsible(false);
    addWidget(body_);
    for (const auto& column : columns_) {
        auto* col = new QSplitter(Qt::Vertical, body_);
        col->setChildrenCollapsible(false);
        body_->addWidget(col);
        columnSplitters_.push_back(col);
        for (int index : column) makeHolder(index, col);
    }
    for (int index : footer_) makeHolder(index, this);
    setStretchFactor(0, 1);
}

void SplitterView::setPaneWidget(int index, QWidget* w) {
    if (QWidget* holder = paneHolder(index)) {
        holder->layout()->addWidget(w);
        holder->updateGeometry();
    }
}

QWidget* SplitterView::paneHolder(int index) const {
    if (index < 0 || index >= static_cast<int>(holders_.size())) return nullptr;
    return holders_[static_cast<size_t>(index)];
}

std::vector<QSplitter*> SplitterView::splitters() const {
    std::vector<QSplitter*> all{const_cast<SplitterView*>(this), body_};
    all.insert(all.end(), columnSplitters_.begin(), columnSplitters_.end());
    return all;
}

void SplitterView::watchHandles() {
    for (QSplitter* s : splitters())
        for (int i = 1; i < s->count(); ++i) s->handle(i)->installEventFilter(this);
}

bool SplitterView::eventFilter(QObject* watched, QEvent* e) {
    if (e->type() == QEvent::MouseButtonRelease && qobject_cast<QSplitterHandle*>(watched)) {
        // After the handle itself has moved the panes.
        QTimer::singleShot(0, this, [this] {
            try {
                model_.userEndDrag();
            } catch (const std::exception& ex) {
                qWarning("qv: %s: %s", model_.name().c_str(), ex.what());
            }
        });
    }
    return QSplitter::eventFilter(watched, e);
}

void SplitterView::applyLimits() {
    for (int i = 0; i < static_cast<int>(holders_.size()); ++i) {
        QWidget* h = holders_[static_cast<size_t>(i)];
        if (!h) continue;
        const Splitter::Pane& p = model_.pane(i);
        static_cast<PaneHolder*>(h)->setLimit(
            {Twips::toPixels(p.minWidth, this), Twips::toPixels(p.minHeight, this)});
        if (p.lockHeight && p.height > 0) h->setFixedHeight(Twips::toPixels(p.height, this));
        else h->setMaximumHeight(QWIDGETSIZE_MAX);
    }
}

void SplitterView::applySizes() {
    auto sizesOf = [this](const std::vector<int>& panes, bool heights) {
        QList<int> sizes;
        for (int i : panes) {
            if (i < 0 || i >= model_.paneCount()) continue;
            const Splitter::Pane& p = model_.pane(i);
            sizes << Twips::toPixels(heights ? p.height : p.width, this);
        }
        return sizes;
    };
    for (size_t c = 0; c < columns_.size(); ++c) {
        const QList<int> heights = sizesOf(columns_[c], true);
        if (!heights.contains(0)) columnSplitters_[c]->setSizes(heights);
    }
}

void SplitterView::followModel() {
    applyLimits();
    applySizes();
}

QByteArray SplitterView::saveAll() const {
    QByteArray blob;
    QDataStream out(&blob, QIODevice::WriteOnly);
    out << kBlobMagic;
    for (QSplitter* s : splitters()) out << s->saveState();
    return blob;
}

bool SplitterView::restoreAll(const QByteArray& blob) {
    QDataStream in(blob);
    quint32 magic = 0;
    in >> magic;
    if (magic != kBlobMagic) return false;
    for (QSplitter* s : splitters()) {
        QByteArray state;
        in >> state;
        if (in.status() != QDataStream::Ok || !s->restoreState(state)) return false;
    }
    return true;
}

}  // namespace qv
