#pragma once
// Opens the Task Appointment dialog through clsTask2 on a fresh store with
// one task and its slots, drives it with scripted user actions and records
// the host events by name.

#include <functional>
#include <string>
#include <vector>

#include "dialogs/appointment/frmTAS2.h"
#include "session/clsTask2.h"
#include "support/TestEnv.h"

namespace qv {

class AppointmentFixture : public TestEnv {
protected:
    static constexpr const char* kTask = "11111111-0000-0000-0000-000000000001";
    static constexpr const char* kSlot = "22222222-0000-0000-0000-000000000001";
    static constexpr const char* kOtherSlot = "22222222-0000-0000-0000-000000000002";
    static constexpr const char* kAlpha = "AAAAAAAA-0000-0000-0000-000000000001";
    static constexpr const char* kBeta = "BBBBBBBB-0000-0000-0000-000000000002";
    static constexpr const char* kChecklist = "CCCCCCCC-0000-0000-0000-000000000003";

    void SetUp() override;

    // Two projects; a task (status 3, importance 2, difficulty 1, 45
    // minutes needed, a deadline) and its slot on 2026-11-24 from 9:00 to
    // 10:30, not yet judged; a second slot of the task of 60 minutes.
    void seed() const;
    void sql(const std::string& statement) const { exec(statement); }

    // SetupTask in mode 2 on the slot; returns when the dialog has closed.
    void open(const std::string& slot = kSlot);
    frmTAS2& form();
    Sheet& sheet(const std::string& name) { return *form().sheet(name); }
    Tool& tool(const std::string& sheetName, const std::string& key) { return *sheet(sheetName).find(key); }

    // Scripted steps, run while the dialog is shown.
    void then(std::function<void()> step) { scriptedUi().queueAction(std::move(step)); }
    void click(const std::string& sheetName, const std::string& key);
    // Typing into a tool and leaving it.
    void type(const std::string& sheetName, const std::string& key, const std::string& text);
    void typeDescription(const std::string& text);
    void key(int32_t code) { then([this, code] { form().keyDown(code); }); }
    void answer(int32_t button) { scriptedUi().queueAnswer(button); }

    [[nodiscard]] int count(const std::string& eventName) const;
    [[nodiscard]] std::string slotValue(const std::string& column, const std::string& slot = kSlot) const;
    [[nodiscard]] std::string taskValue(const std::string& column) const;

    clsTask2 task_;
    std::vector<std::string> events_;

private:
    std::shared_ptr<frmTAS2> form_;
};

}  // namespace qv
