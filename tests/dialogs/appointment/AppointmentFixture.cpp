#include "dialogs/appointment/AppointmentFixture.h"

namespace qv {

void AppointmentFixture::SetUp() {
    NewTaskFixture::SetUp();
    task_.setTempErrReport(std::shared_ptr<Reporter>(&reporter(), [](Reporter*) {}));
}

void AppointmentFixture::seed() const {
    exec("INSERT INTO PROJECTS (prjGUIDID, prjProject) VALUES ('" + std::string(kAlpha) + "', 'Alpha')");
    exec("INSERT INTO PROJECTS (prjGUIDID, prjProject) VALUES ('" + std::string(kBeta) + "', 'B&eta')");
    exec("INSERT INTO TASKS (tskGUIDID, tskDesc, tskProject, tskProjectKey, tskStatus, tskImp, tskDifficulty, "
         "tskTimeNeeded, tskTimeScheduled, tskTimeSpent, tskCurrent, tskNotes, tskDeadline, tskPossPoints, "
         "tskHasChecklist, tskHasSchedule) VALUES ('" + std::string(kTask) +
         "', 'Task text', 'Alpha', '" + kAlpha +
         "', 3, 2, 1, 45, 30, 20, 1, 'task notes', '2026-12-01T17:00:00.000', 7, 0, 1)");
    exec("INSERT INTO TASKAPPTS (taGUIDID, taTaskGUIDID, taProject, taProjectGUIDID, taStartTime, taEndTime, "
         "taTaskDesc, taImp, taDifficulty, taWasWorked, taTimeWorked, taDuration) VALUES ('" + std::string(kSlot) +
         "', '" + kTask + "', 'Alpha', '" + kAlpha +
         "', '2026-11-24T09:00:00.000', '2026-11-24T10:30:00.000', 'Slot text', 2, 1, NULL, 0, 90)");
    exec("INSERT INTO TASKAPPTS (taGUIDID, taTaskGUIDID, taStartTime, taEndTime, taTaskDesc, taImp, "
         "taDifficulty, taWasWorked, taDuration) VALUES ('" + std::string(kOtherSlot) + "', '" + kTask +
         "', '2026-11-25T14:00:00.000', '2026-11-25T15:00:00.000', 'Other', 2, 1, 0, 60)");
}

void AppointmentFixture::open(const std::string& slot) {
    form_.reset();
    task_.SetupTask(2, slot, {"u0", "u1", "u2", "u3", "u4", "u5"}, 1, "", slot);
    if (!form_) form_ = task_.frmWorkTAS();
}

frmTAS2& AppointmentFixture::form() {
    // Held past the close, which clears the session's reference.
    if (!form_) form_ = task_.frmWorkTAS();
    return *form_;
}

void AppointmentFixture::type(const std::string& sheetName, const std::string& key, const std::string& text) {
    then([this, sheetName, key, text] {
        Sheet& s = sheet(sheetName);
        Tool& t = tool(sheetName, key);
        if (!s.beginEdit(t)) return;
        s.userEdit(t, text);
        s.endEdit(t);
    });
}

std::string AppointmentFixture::slotValue(const std::string& column, const std::string& slot) const {
    return readOne("SELECT " + column + " FROM TASKAPPTS WHERE taGUIDID='" + slot + "'");
}

std::string AppointmentFixture::taskValue(const std::string& column) const {
    return readOne("SELECT " + column + " FROM TASKS WHERE tskGUIDID='" + kTask + "'");
}

}  // namespace qv
