#pragma once
// Opens the New Task dialog through clsTask2 on a fresh store and drives it
// with scripted user actions; records the host events by name.

#include <functional>
#include <string>
#include <vector>

#include "dialogs/newtask/NewTaskFields.h"
#include "dialogs/newtask/frmTask3.h"
#include "session/clsTask2.h"
#include "support/TestEnv.h"

namespace qv {

class NewTaskFixture : public TestEnv {
protected:
    static constexpr const char* kAlpha = "AAAAAAAA-0000-0000-0000-000000000001";
    static constexpr const char* kBeta = "BBBBBBBB-0000-0000-0000-000000000002";
    static constexpr const char* kKeyRed = "CCCCCCCC-0000-0000-0000-000000000003";
    static constexpr const char* kKeyBlue = "DDDDDDDD-0000-0000-0000-000000000004";

    void SetUp() override;

    void addProject(const std::string& key, const std::string& name) const;
    void addKeyword(const std::string& key, const std::string& subject, const std::string& word) const;
    // Two projects, two keywords under one subject.
    void seed() const;

    // SetupTask in the mode; returns when the dialog has been hidden.
    void open(int32_t mode = 0, const std::string& guid = {}, const std::string& project = {});
    frmTask3& form() { return *task_.frm(); }
    // The dialog the scripted steps act on.
    virtual Form& shown() { return form(); }
    Sheet& sheet(const std::string& name) { return *shown().sheet(name); }
    Tool& tool(const std::string& sheetName, const std::string& key) { return *sheet(sheetName).find(key); }

    // Scripted steps, run while the dialog is shown.
    void then(std::function<void()> step) { scriptedUi().queueAction(std::move(step)); }
    void fireTimer() { then([this] { fakeClock().advance(600); }); }
    void click(const std::string& sheetName, const std::string& key);
    void typeDescription(const std::string& text);
    void key(int32_t code) { then([this, code] { shown().keyDown(code); }); }
    void closeHidden() { then([this] { shown().hide(); }); }
    // Another user's change to the store, made while the dialog is shown.
    void otherUser(const std::string& sql) { then([this, sql] { exec(sql); }); }

    [[nodiscard]] int count(const std::string& eventName) const;

    clsTask2 task_;
    std::vector<std::string> events_;
};

// A fixture whose seed() runs before each test.
template <class Fixture>
class Seeded : public Fixture {
protected:
    void SetUp() override {
        Fixture::SetUp();
        this->seed();
    }
};

}  // namespace qv
