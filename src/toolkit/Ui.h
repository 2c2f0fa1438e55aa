#pragma once
// The user-interface port: message boxes, modal show, hide, the event pump
// and the wait cursor. QtUi is the desktop one, ScriptedUi the tests' one.

#include <cstdint>
#include <string>

#include "Export.h"

namespace qv {

class Form;

// Message box styles and answers, with the platform's numbers.
enum MsgStyle : int32_t {
    vbOKOnly = 0,
    vbOKCancel = 1,
    vbAbortRetryIgnore = 2,
    vbYesNoCancel = 3,
    vbYesNo = 4,
    vbRetryCancel = 5,
    vbCritical = 16,
    vbQuestion = 32,
    vbExclamation = 48,
    vbInformation = 64,
    vbDefaultButton2 = 256,
};
enum MsgAnswer : int32_t { vbOK = 1, vbCancel = 2, vbAbort = 3, vbRetry = 4, vbIgnore = 5, vbYes = 6, vbNo = 7 };

class QV_EXPORT Ui {
public:
    virtual ~Ui() = default;
    // Shows a message box; style is buttons + icon (+ default button).
    virtual int32_t msgBox(const std::string& text, int32_t style, const std::string& title) = 0;
    // Blocks until the form is hidden, while events keep flowing.
    virtual void showModal(Form& form) = 0;
    // Shows without blocking.
    virtual void show(Form& form) = 0;
    // Ends the form's modal wait.
    virtual void hide(Form& form) = 0;
    // One pass of the event pump (timers due fire here).
    virtual void doEvents() = 0;
    // While held, the pump leaves the user's keys and clicks queued: a dialog
    // busy with a change of its own takes them once it stands still.
    virtual void holdInput(bool /*held*/) {}
    virtual void setWaitCursor(bool on) = 0;
};

}  // namespace qv
