#include "dialogs/appointment/AppointmentLoader.h"

#include <cmath>

#include "dialogs/appointment/frmTAS2.h"
#include "dialogs/shared/DialogMessages.h"
#include "dialogs/shared/SettingUp.h"
#include "dialogs/shared/SheetPicks.h"
#include "dialogs/shared/StatusWords.h"
#include "dialogs/shared/StoredRow.h"
#include "dialogs/shared/TaskRecord.h"
#include "session/globals/SessionGlobals.h"
#include "store/Recordset.h"
#include "store/StoreQueries.h"
#include "store/clsChecklistsInATask.h"
#include "store/clsNewTask.h"
#include "store/clsVLProjectsList.h"
#include "toolkit/Failure.h"
#include "toolkit/Translate.h"
#include "values/types/CNull.h"
#include "values/types/Convert.h"
#include "values/types/DateTimeFormatter.h"
#include "values/types/TaskUtil.h"
#include "values/settings/TimeValues.h"

namespace qv {

namespace {

const char* const kLostChecklist = QV_N("The checklist formerly associated with this task could not be found.");
constexpr int32_t kRed = 255;
constexpr std::size_t kChecklistNameShown = 80;

RecordsetPtr openKeyed(clsNewTask& source, const Query& sql) {
    RecordsetPtr rs;
    source.SetSQLKey(sql);
    if (!source.GetDataKEY(rs)) throw Failure(err::ObjectRequired, "Object required");
    return rs;
}

std::string text(Recordset& rs, const char* column) { return CNull::NVLStr(rs.Fields(column).value()); }

double timeOfDay(double serial) { return serial - std::floor(serial); }

// A tool's text as a time of day; what is no time fails as the conversion does.
double readTime(const std::string& text) {
    const auto serial = tryToDate(text);
    if (!serial) throw Failure(err::TypeMismatch, "Type mismatch");
    return timeOfDay(*serial);
}

double round4(double x) { return std::round(x * 10000.0) / 10000.0; }

}  // namespace

void AppointmentLoader::fillLists() {
    auto& c = f_.controls();
    const auto& s = g();
    SheetPicks::fillList(c.smtABOUT.tool("STATUS"), "STATUS-", s.StatusList);
    SheetPicks::fillList(c.smtABOUT.tool("IMP"), "IMP-", {s.ImportanceList.begin(), s.ImportanceList.end()});
    SheetPicks::fillList(c.smtABOUT.tool("DIFF"), "DIF-", {s.DifficultyList.begin(), s.DifficultyList.end()});
    fillProjects();
}

// Unlike the other task dialogs, every project is offered and the names
// array follows the keys.
void AppointmentLoader::fillProjects() {
    clsVLProjectsList list;
    RecordsetPtr rs;
    list.SetSQL(queries::projectList());
    if (!list.GetData(rs)) throw Failure(err::ObjectRequired, "Object required");
    const int32_t rows = rs->RecordCount();
    if (rows >= 1) {
        auto& s = g();
        s.ProjectKeys.assign(static_cast<std::size_t>(rows), {});
        s.ProjectNames.assign(static_cast<std::size_t>(rows), {});
        Tool& project = f_.controls().smtABOUT.tool("PROJECT");
        project.clearItems();
        for (std::size_t i = 0; !rs->EOF_() && i < s.ProjectKeys.size(); ++i, rs->MoveNext()) {
            const std::string key = text(*rs, "prjGUIDID");
            const std::string name = ZapAmps(text(*rs, "prjProject"));
            project.addItem(ttOption, "PRJ-" + key, name).setTag(key);
            s.ProjectKeys[i] = key;
            s.ProjectNames[i] = name;
        }
    }
    if (rs->State() == adStateOpen) rs->Close();
}

void AppointmentLoader::GetTAS() {
    SettingUp raised;
    if (readAppointment()) readTask();
}

bool AppointmentLoader::readAppointment() {
    clsNewTask source;
    auto rs = openKeyed(source, queries::appointmentByKey(g().CurrentTaskGUID));
    if (rs->RecordCount() != 1) {
        rs->Close();
        return false;
    }
    auto& c = f_.controls();
    StoredRow row(*rs, "TASKAPPTS", g().CurrentTaskGUID);
    row.setName(row.text("taTaskDesc"));
    c.spellTask.setText(row.text("taTaskDesc"));
    Tool& project = c.smtABOUT.tool("PROJECT");
    project.setTag(row.text("taprojectGUIDID"));
    project.setText(row.text("taProject"));
    for (auto [key, column, field, list] :
         {std::tuple{"IMP", "taImp", QV_N("Importance"), &g().ImportanceList},
          std::tuple{"DIFF", "taDifficulty", QV_N("Difficulty"), &g().DifficultyList}}) {
        const auto index = row.level(column, field, list->size());
        Tool& level = c.smtABOUT.tool(key);
        level.setTag(index ? std::to_string(*index) : std::string());
        level.setText(index ? (*list)[static_cast<std::size_t>(*index)] : std::string());
    }
    f_.TATaskGUID = row.text("taTaskGUIDID");
    const auto& format = DateTimeFormatter::current();
    const auto start = row.date("taStartTime", QV_N("Start"));
    if (start) {
        c.smtTimes.tool("START").setText(format.longTime(timeOfDay(*start)));
        c.ctTADate.setValue(std::floor(*start));
    }
    if (const auto end = row.date("taEndTime", QV_N("End"))) c.smtTimes.tool("END").setText(format.longTime(timeOfDay(*end)));
    if (!rs->Fields("taWasWorked").value().isNull())
        c.smtTimes.tool("DONE").setText(row.flag("taWasWorked", QV_N("Was Worked")) ? tr("Complete") : tr("Not Complete"));
    const int32_t minutes = row.minutes("taTimeWorked", QV_N("Time Worked"));
    c.smtTimes.tool("TIMESPENT").setText(minutes > 0 ? SetTimeFormat(minutes) : "0:00");
    f_.SlotRow = rs;
    row.tell();
    return true;
}

void AppointmentLoader::readTask() {
    clsNewTask source;
    auto rs = openKeyed(source, queries::taskByKey(f_.TATaskGUID));
    if (rs->RecordCount() != 1) {
        rs->Close();
        return;
    }
    auto& c = f_.controls();
    StoredRow row(*rs, "TASKS", f_.TATaskGUID);
    row.setName(row.text("tskDesc"));
    const auto points = row.number("tskPossPoints", QV_N("Possible Points"), true);
    c.smtReady.tool("POINTS").setText(points ? std::to_string(*points) : "0");
    c.SpellNotes.setText(row.text("tskNotes"));
    const bool current = row.flag("tskCurrent", QV_N("Current"));
    Tool& isCurrent = c.smtABOUT.tool("ISCURRENT");
    isCurrent.setTag(current ? "TRUE" : "FALSE");
    isCurrent.setText(current ? tr("Yes") : tr("No"));
    for (auto [key, column, field] : {std::tuple{"NEEDED", "tskTimeNeeded", QV_N("Time Needed")},
                                      std::tuple{"SCHEDULED", "tskTimeScheduled", QV_N("Time Scheduled")},
                                      std::tuple{"SPENT", "tskTimeSpent", QV_N("Time Spent")}}) {
        const std::string shown = SetTimeFormat(row.minutes(column, field));
        Tool& t = c.smtABOUT.tool(key);
        t.setTag(shown);
        t.setText(shown);
    }
    const double deadline = row.date("tskDeadline", QV_N("Deadline")).value_or(0.0);
    if (deadline > 0) {
        Tool& t = c.smtABOUT.tool("DEADLINE");
        t.setText(DateTimeFormatter::current().generalDate(deadline));
        t.setForeColor(kRed);
        t.setBold(true);
    }
    showStatus(readStatus(row));
    readChecklist(*rs);
    f_.TaskRow = rs;
    row.tell();
}

// A status beyond the list is a bounds failure; one that can't be read is
// the missing status.
int32_t AppointmentLoader::readStatus(StoredRow& row) {
    const auto status = row.number("tskStatus", QV_N("Status"));
    if (!status) return kNothingChosen;
    if (*status > StatusWords::kDefined && static_cast<std::size_t>(*status) >= g().StatusList.size())
        row.beyondList("tskStatus", QV_N("Status"));
    if (*status < 0) row.beyondList("tskStatus", QV_N("Status"));
    return *status;
}

void AppointmentLoader::showStatus(int32_t status) {
    auto& c = f_.controls();
    Tool& t = c.smtABOUT.tool("STATUS");
    if (status == kNothingChosen) return;
    t.setTag(std::to_string(status));
    t.setText(StatusWords::word(status));
    t.setBold(status == StatusWords::kCompleted);
    if (status == StatusWords::kCompleted) c.smtReady.tool("DONE").setChecked(true);
}

// A flag without a key is put right in the store at once; a key whose
// checklist is gone is told, and the row keeps it until the user saves.
void AppointmentLoader::readChecklist(Recordset& task) {
    auto& state = f_.checklist;
    const std::string key = text(task, "tskTCheckListGUID");
    if (key.empty()) {
        if (CNull::NVLBool(task.Fields("tskHasChecklist").value())) {
            task.Fields("tskHasChecklist") = Value(false);
            task.Update();
            task.UpdateBatch(adAffectAllChapters);
        }
        state.utilCheckListExists = false;
        state.utilChecklistKey.clear();
        f_.setCKEditMode(0);
        return;
    }
    state.utilCheckListExists = true;
    state.utilChecklistKey = f_.TACheckListGUID = key;
    clsChecklistsInATask source;
    RecordsetPtr rs;
    source.SetSQL(queries::checklistByKey(key));
    if (!source.GetDataKEY(rs)) throw Failure(err::ObjectRequired, "Object required");
    auto& c = f_.controls();
    if (rs->RecordCount() == 1) {
        const std::string name = text(*rs, "ckName");
        c.lblCk.setCaption(frmTAS2::TrimtoLen(name, kChecklistNameShown) + tr(" Checklist: "));
        state.utilChecklistName = name;
        c.spellCK.setText(text(*rs, "ckContent"));
        f_.setCKEditMode(1);
    } else {
        DialogMessages::inform(tr(kLostChecklist));
        state.utilCheckListExists = false;
        state.utilChecklistKey.clear();
        f_.setCKEditMode(0);
    }
    if (rs->State() == adStateOpen) rs->Close();
}

std::string AppointmentLoader::getTATimeNeeded() {
    auto& times = f_.controls().smtTimes;
    const double end = round4(readTime(times.tool("END").text()));
    const double start = round4(readTime(times.tool("START").text()));
    return SetTimeFormat(roundLong((end - start) * 1440.0));
}

}  // namespace qv
