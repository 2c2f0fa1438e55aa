#pragma once
// Opens the Existing Task dialog through clsTask2 on a fresh store with a
// stored task, and drives it with scripted user actions.

#include <functional>
#include <string>

#include "dialogs/existingtask/ExistingTaskFields.h"
#include "dialogs/existingtask/frmExistingTask.h"
#include "dialogs/newtask/NewTaskFixture.h"

namespace qv {

class ExistingTaskFixture : public NewTaskFixture {
protected:
    static constexpr const char* kTask = "99999999-0000-0000-0000-000000000009";
    static constexpr const char* kCatalogItem = "77777777-0000-0000-0000-000000000007";
    static constexpr const char* kChecklist = "66666666-0000-0000-0000-000000000006";

    // A task in project Alpha, In Progress, importance 2, difficulty 3,
    // 1:30 needed, 0:45 spent, with extra column assignments (SQL).
    void addTask(const std::string& extraColumns = {}, const std::string& extraValues = {}) const;
    void linkKeyword(const std::string& keyword) const;
    // A column of the stored task.
    [[nodiscard]] std::string column(const std::string& name) const {
        return readOne("SELECT " + name + " FROM TASKS WHERE tskGUIDID='" + kTask + "'");
    }

    void openTask(int32_t mode = 1, const std::string& guid = kTask) { open(mode, guid); }
    // Runs the checks in the opened dialog, then closes it.
    void look(const std::function<void()>& checks, int32_t mode = 1) {
        then([this, checks] {
            checks();
            eform().hide();
        });
        openTask(mode);
    }
    frmExistingTask& eform() { return *task_.frmE(); }
    Form& shown() override { return eform(); }

    // Chooses the entry of a drop-down list tool by its caption.
    void choose(const std::string& listKey, const std::string& caption);
    void etype(const std::string& sheetName, const std::string& key, const std::string& text);
    void answer(int32_t a) { then([this, a] { scriptedUi().queueAnswer(a); }); }
};

}  // namespace qv
