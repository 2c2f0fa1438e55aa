#pragma once
// Opens the Task Appointment dialog through clsTask2 on a fresh store with
// one task and its slots; the scripted steps and the recorded host events
// are the New Task fixture's.

#include <string>

#include "dialogs/appointment/frmTAS2.h"
#include "dialogs/newtask/NewTaskFixture.h"

namespace qv {

class AppointmentFixture : public NewTaskFixture {
protected:
    static constexpr const char* kTask = "11111111-0000-0000-0000-000000000001";
    static constexpr const char* kSlot = "22222222-0000-0000-0000-000000000001";
    static constexpr const char* kOtherSlot = "22222222-0000-0000-0000-000000000002";
    static constexpr const char* kChecklist = "CCCCCCCC-0000-0000-0000-000000000003";

    void SetUp() override;

    // Two projects; a task (status 3, importance 2, difficulty 1, 45
    // minutes needed, a deadline) and its slot on 2026-11-24 from 9:00 to
    // 10:30, not yet judged; a second slot of the task of 60 minutes.
    void seed() const;

    // SetupTask in mode 2 on the slot; returns when the dialog has closed.
    void open(const std::string& slot = kSlot);
    frmTAS2& form();
    Form& shown() override { return form(); }

    // Typing into a tool and leaving it.
    void type(const std::string& sheetName, const std::string& key, const std::string& text);
    void answer(int32_t button) { scriptedUi().queueAnswer(button); }

    [[nodiscard]] std::string slotValue(const std::string& column, const std::string& slot = kSlot) const;
    [[nodiscard]] std::string taskValue(const std::string& column) const;

private:
    std::shared_ptr<frmTAS2> form_;
};

}  // namespace qv
