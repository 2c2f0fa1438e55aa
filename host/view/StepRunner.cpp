#include "view/StepRunner.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>

#include "kit/FormWindow.h"
#include "kit/SheetWidget.h"
#include "kit/ToolCell.h"
#include "toolkit/Form.h"

namespace qv {

namespace {
constexpr int kTickMs = 25;
}

StepRunner::StepRunner(int timeoutMs, QObject* parent) : QObject(parent), timeoutMs_(timeoutMs) {
    ticker_.setInterval(kTickMs);
    connect(&ticker_, &QTimer::timeout, this, &StepRunner::tick);
}

StepRunner& StepRunner::when(const QString& name, Condition cond, Action act, int settleMs) {
    steps_.push_back({name, std::move(cond), std::move(act), settleMs});
    return *this;
}

void StepRunner::start() {
    stepClock_.start();
    ticker_.start();
}

QWidget* StepRunner::formWindow(const QString& form) {
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->objectName() == form && w->isVisible() && qobject_cast<FormWindow*>(w)) return w;
    return nullptr;
}

bool StepRunner::clickTool(const QString& form, const QString& cell) {
    QWidget* w = formWindow(form);
    auto* c = w ? w->findChild<ToolCell*>(cell) : nullptr;
    if (auto* b = c ? qobject_cast<QAbstractButton*>(c->control()) : nullptr; b && b->isEnabled()) {
        b->click();
        return true;
    }
    // An entry of a drop-down menu is named by its key alone.
    auto* a = w ? w->findChild<QAction*>(cell.section('.', 1)) : nullptr;
    if (a && a->isEnabled()) {
        a->trigger();
        return true;
    }
    // A long sheet paints its tools as rows of a list.
    auto* sheet = w ? w->findChild<SheetWidget*>(cell.section('.', 0, 0)) : nullptr;
    if (sheet && sheet->activate(cell.section('.', 1).toStdString())) return true;
    qInfo("steps: %s is not there to click, or disabled", qPrintable(cell));
    return false;
}

void StepRunner::typeInto(QWidget* w, const QString& text) {
    w->setFocus();
    for (const QChar c : text) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
        QApplication::sendEvent(w, &press);
        QKeyEvent release(QEvent::KeyRelease, 0, Qt::NoModifier, QString(c));
        QApplication::sendEvent(w, &release);
    }
}

void StepRunner::closeAll() {
    for (const auto& form : Form::openForms()) form->unload();
}

void StepRunner::tick() {
    if (done_) return;
    answerMessageBox();
    if (next_ >= steps_.size()) {
        finish();
        return;
    }
    Step& step = steps_[next_];
    if (stepClock_.elapsed() > timeoutMs_) {
        qInfo("steps: skipped \"%s\": it did not come to pass", qPrintable(step.name));
        skipped_ << step.name;
        ++next_;
        stepClock_.restart();
        readySince_.invalidate();
        return;
    }
    if (!step.ready()) {
        readySince_.invalidate();
        return;
    }
    if (!readySince_.isValid()) readySince_.start();
    if (readySince_.elapsed() < step.settleMs) return;
    // Move on first: the action may wait in a modal window, and a timer
    // does not fire again while its own slot runs, so it gets a one-shot.
    ++next_;
    stepClock_.restart();
    readySince_.invalidate();
    qInfo("steps: %s", qPrintable(step.name));
    QTimer::singleShot(0, this, step.act);
}

void StepRunner::answerMessageBox() {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box || !box->isVisible() || box->property("qvAnswering").toBool()) return;
    box->setProperty("qvAnswering", true);
    messages_ << box->text();
    const int chosen = boxHandler_ ? boxHandler_(*box) : 0;
    QAbstractButton* b = chosen ? box->button(static_cast<QMessageBox::StandardButton>(chosen)) : nullptr;
    if (!b) b = box->button(QMessageBox::Yes);
    if (!b) b = box->defaultButton();
    if (!b && !box->buttons().isEmpty()) b = box->buttons().first();
    if (b) QTimer::singleShot(0, b, &QAbstractButton::click);
}

void StepRunner::abandon(const QString& why) {
    if (done_) return;
    qInfo("steps: stopped: %s", qPrintable(why));
    for (; next_ < steps_.size(); ++next_) skipped_ << steps_[next_].name;
    finish();
}

void StepRunner::finish() {
    done_ = true;
    ticker_.stop();
    if (finished_) finished_();
}

}  // namespace qv
