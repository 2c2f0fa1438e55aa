#pragma once
// The user-interface port of the tests and the scenario driver. Message
// boxes take queued answers and are recorded; a modal show runs queued
// user actions until its form is hidden. A script that runs short throws
// std::logic_error, so a test fails instead of hanging.

#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "Export.h"
#include "toolkit/Ui.h"

namespace qv {

class FakeClock;

class QV_EXPORT ScriptedUi : public Ui {
public:
    struct Message {
        std::string text;
        int32_t style = 0;
        std::string title;
    };
    using Action = std::function<void()>;

    // The answer to the next message box not yet answered.
    void queueAnswer(int32_t answer);
    // A user action, run while a form is shown modally.
    void queueAction(Action action);
    [[nodiscard]] std::size_t pendingAnswers() const { return answers_.size(); }
    [[nodiscard]] std::size_t pendingActions() const { return actions_.size(); }

    [[nodiscard]] const std::vector<Message>& messages() const { return messages_; }
    // Throws std::logic_error when no message box was asked.
    [[nodiscard]] const Message& lastMessage() const;
    void clearMessages() { messages_.clear(); }
    // Names of the forms shown, modal or not, in order.
    [[nodiscard]] const std::vector<std::string>& shown() const { return shown_; }
    [[nodiscard]] bool waitCursor() const { return waitCursor_; }
    [[nodiscard]] bool inputHeld() const { return inputHeld_; }
    [[nodiscard]] int32_t modalDepth() const { return depth_; }
    // Every script error thrown, kept even when a handler's trap swallowed it.
    [[nodiscard]] const std::vector<std::string>& scriptErrors() const { return scriptErrors_; }

    // How far doEvents moves the installed clock when it is a FakeClock, so
    // that clock loops such as subDelay end. 0 keeps time still.
    void setDoEventsStep(int64_t ms) { doEventsStepMs_ = ms; }

    int32_t msgBox(const std::string& text, int32_t style, const std::string& title) override;
    void showModal(Form& form) override;
    void show(Form& form) override;
    void hide(Form& form) override;
    void doEvents() override;
    void holdInput(bool held) override { inputHeld_ = held; }
    void setWaitCursor(bool on) override { waitCursor_ = on; }

private:
    void runUntilHidden(Form& form);
    [[noreturn]] void scriptError(const std::string& what);

    std::deque<int32_t> answers_;
    std::deque<Action> actions_;
    std::vector<Message> messages_;
    std::vector<std::string> shown_;
    std::vector<std::string> scriptErrors_;
    bool waitCursor_ = false;
    bool inputHeld_ = false;
    int32_t depth_ = 0;
    int64_t doEventsStepMs_ = 10;
};

}  // namespace qv
