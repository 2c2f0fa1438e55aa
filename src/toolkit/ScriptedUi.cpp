#include "toolkit/ScriptedUi.h"

#include <stdexcept>

#include "toolkit/FakeClock.h"
#include "toolkit/Form.h"
#include "toolkit/Ports.h"
#include "toolkit/Timer.h"

namespace qv {

void ScriptedUi::queueAnswer(int32_t answer) {
    answers_.push_back(answer);
}

void ScriptedUi::queueAction(Action action) {
    actions_.push_back(std::move(action));
}

const ScriptedUi::Message& ScriptedUi::lastMessage() const {
    if (messages_.empty()) throw std::logic_error("no message box was shown");
    return messages_.back();
}

void ScriptedUi::scriptError(const std::string& what) {
    scriptErrors_.push_back(what);
    throw std::logic_error(what);
}

int32_t ScriptedUi::msgBox(const std::string& text, int32_t style, const std::string& title) {
    messages_.push_back({text, style, title});
    if (answers_.empty()) scriptError("no answer queued for the message \"" + text + "\"");
    const int32_t answer = answers_.front();
    answers_.pop_front();
    return answer;
}

void ScriptedUi::runUntilHidden(Form& form) {
    while (form.visible()) {
        if (actions_.empty()) scriptError("script ran out while " + form.name() + " is shown");
        Action next = std::move(actions_.front());
        actions_.pop_front();
        next();
    }
}

void ScriptedUi::showModal(Form& form) {
    shown_.push_back(form.name());
    FormAccess::setVisible(form, true);
    // Objects unloaded inside the wait die only when the outermost wait
    // returns: a handler further out may still run on them.
    struct Depth {
        int32_t& d;
        explicit Depth(int32_t& depth) : d(depth) { ++d; }
        ~Depth() {
            if (--d == 0) releaseDeferred();
        }
    } depth(depth_);
    runUntilHidden(form);
}

void ScriptedUi::show(Form& form) {
    shown_.push_back(form.name());
    FormAccess::setVisible(form, true);
}

void ScriptedUi::hide(Form& form) {
    FormAccess::setVisible(form, false);
}

void ScriptedUi::doEvents() {
    if (auto* fake = dynamic_cast<FakeClock*>(ports().clock); fake && doEventsStepMs_ > 0)
        fake->advance(doEventsStepMs_);
    else
        Timer::fireDue();
}

}  // namespace qv
