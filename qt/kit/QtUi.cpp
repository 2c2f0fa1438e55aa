#include "kit/QtUi.h"

#include <QApplication>
#include <QCursor>

#include "kit/EnchantChecker.h"
#include "kit/FormView.h"
#include "kit/FormWindow.h"
#include "kit/MessageBoxes.h"
#include "kit/ViewFactory.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/Form.h"
#include "toolkit/Timer.h"

namespace qv {

namespace {
// How often the toolkit's timers are looked at; their own intervals are coarser.
constexpr int kTimerPumpMs = 20;
}  // namespace

QtUi::QtUi(ViewFactory& views, QObject* parent) : QObject(parent), views_(views) {
    EnchantChecker::preload();
    timerPump_.setInterval(kTimerPumpMs);
    // A timer's handler may wait in a modal window; the pump itself must go
    // on ticking meanwhile, so each pass runs from a one-shot of its own.
    connect(&timerPump_, &QTimer::timeout, this, [] { QTimer::singleShot(0, [] { Timer::fireDue(); }); });
    timerPump_.start();
}

QtUi::~QtUi() {
    setWaitCursor(false);
    modeless_.clear();
}

int32_t QtUi::msgBox(const std::string& text, int32_t style, const std::string& title) {
    QWidget* parent = QApplication::activeModalWidget();
    if (!parent) parent = QApplication::activeWindow();
    const bool wasWaiting = waitCursor_;
    setWaitCursor(false);
    // A box without a title of its own carries the program's.
    const int32_t answer = MessageBoxes::ask(parent, text, style, title.empty() ? kProgramTitle : title);
    setWaitCursor(wasWaiting);
    return answer;
}

std::unique_ptr<FormWindow> QtUi::build(Form& form) {
    auto window = std::make_unique<FormWindow>(form, views_.make(form), parentFor(form));
    windows_[&form] = window.get();
    if (windowBuilt_) windowBuilt_(*window);
    return window;
}

QWidget* QtUi::parentFor(const Form& form) const {
    if (form.owner())
        if (FormWindow* w = windowOf(*form.owner())) return w;
    return QApplication::activeModalWidget();
}

void QtUi::showModal(Form& form) {
    FormAccess::setVisible(form, true);
    struct Depth {
        int& d;
        explicit Depth(int& depth) : d(depth) { ++d; }
        ~Depth() {
            if (--d == 0) releaseDeferred();
        }
    } depth(depth_);
    {
        std::unique_ptr<FormWindow> window = build(form);
        window->setModal(true);
        // The form may have been hidden while its window was built.
        if (form.visible()) window->exec();
        windows_.erase(&form);
    }
    FormAccess::setVisible(form, false);
}

void QtUi::show(Form& form) {
    FormAccess::setVisible(form, true);
    auto window = build(form);
    window->show();
    modeless_[&form] = std::move(window);
}

void QtUi::hide(Form& form) {
    auto it = windows_.find(&form);
    if (it == windows_.end()) return;
    it->second->finish();
    if (auto m = modeless_.find(&form); m != modeless_.end()) {
        windows_.erase(it);
        m->second.release()->deleteLater();
        modeless_.erase(m);
    }
}

void QtUi::doEvents() {
    QApplication::sendPostedEvents();
    QApplication::processEvents(inputHeld_ ? QEventLoop::ExcludeUserInputEvents : QEventLoop::AllEvents, 50);
}

void QtUi::setWaitCursor(bool on) {
    if (on == waitCursor_) return;
    waitCursor_ = on;
    if (on) QApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
    else QApplication::restoreOverrideCursor();
}

FormWindow* QtUi::windowOf(const Form& form) const {
    auto it = windows_.find(&form);
    return it == windows_.end() ? nullptr : it->second;
}

}  // namespace qv
