#include "kit/FormWindow.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QTimer>
#include <QVBoxLayout>

#include "kit/FormView.h"
#include "kit/ScreenFit.h"
#include "kit/Twips.h"
#include "toolkit/Form.h"

namespace qv {

namespace {
int32_t keyCodeOf(int qtKey) {
    switch (qtKey) {
    case Qt::Key_Return:
    case Qt::Key_Enter: return vbKeyReturn;
    case Qt::Key_Escape: return vbKeyEscape;
    case Qt::Key_F1: return vbKeyF1;
    default: return 0;
    }
}
}  // namespace

FormWindow::FormWindow(Form& form, FormView* view, QWidget* parent)
    : QDialog(parent), form_(form), view_(view) {
    setObjectName(QString::fromStdString(form.name()));
    setSizeGripEnabled(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view);
    // The view's minimum (its own limit and what its contents need) holds
    // the window, and follows when the contents grow.
    layout->setSizeConstraint(QLayout::SetMinimumSize);
    changed_ = EventLink(form.Changed, [this] { followModel(); });
    setWindowTitle(QString::fromStdString(form.caption()));
    applyGeometry();
}

FormWindow::~FormWindow() = default;

void FormWindow::finish() {
    finished_ = true;
    changed_.reset();
    QDialog::done(0);
}

void FormWindow::reject() {
    // Only the model closes the window.
}

void FormWindow::closeEvent(QCloseEvent* e) {
    e->ignore();
    if (!finished_) form_.requestClose();
}

void FormWindow::keyPressEvent(QKeyEvent* e) {
    const int32_t code = keyCodeOf(e->key());
    if (code == 0) {
        QDialog::keyPressEvent(e);
        return;
    }
    e->accept();
    form_.keyDown(code, 0);
}

void FormWindow::followModel() {
    setWindowTitle(QString::fromStdString(form_.caption()));
    applyGeometry();
}

void FormWindow::applyGeometry() {
    const Form::Geometry& g = form_.geometry();
    applying_ = true;
    if (g.state == vbMaximized) {
        setWindowState(windowState() | Qt::WindowMaximized);
    } else {
        const QSize size = g.width > 0 && g.height > 0 ? QSize(g.width, g.height) : view_->defaultTwips();
        const QSize px = Twips::toPixels(size, this).expandedTo(minimumSizeHint());
        const QPoint at(Twips::toPixels(g.left, this), Twips::toPixels(g.top, this));
        // Kept from a larger screen, or asked at a large scale: within this screen.
        const QRect fitted = ScreenFit::fit(this, QRect(at, px));
        if (fitted.size() != this->size()) resize(fitted.size());
        if (g.width > 0 && fitted.topLeft() != pos()) move(fitted.topLeft());
    }
    applying_ = false;
}

void FormWindow::reportGeometry() {
    if (applying_ || finished_ || !isVisible()) return;
    Form::Geometry g;
    g.left = Twips::fromPixels(x(), this);
    g.top = Twips::fromPixels(y(), this);
    g.width = Twips::fromPixels(width(), this);
    g.height = Twips::fromPixels(height(), this);
    g.state = isMaximized() ? vbMaximized : (isMinimized() ? vbMinimized : vbNormal);
    form_.userResized(g);
}

void FormWindow::resizeEvent(QResizeEvent* e) {
    QDialog::resizeEvent(e);
    reportGeometry();
}

// Placed beside its owner, a window may reach past the screen's edge.
void FormWindow::showEvent(QShowEvent* e) {
    QDialog::showEvent(e);
    // After the placement that showing does.
    QTimer::singleShot(0, this, [this] {
        if (!isMaximized() && !finished_) ScreenFit::apply(this);
    });
}

void FormWindow::moveEvent(QMoveEvent* e) {
    QDialog::moveEvent(e);
    reportGeometry();
}

}  // namespace qv
