#include "dialogs/appointment/AppointmentLoader.h"

#include <cmath>

#include "dialogs/appointment/frmTAS2.h"
#include "dialogs/shared/DialogMessages.h"
#include "dialogs/shared/SettingUp.h"
#include "dialogs/shared/SheetPicks.h"
#include "dialogs/shared/StatusWords.h"
#include "session/globals/SessionGlobals.h"
#include "store/Recordset.h"
#include "store/clsChecklistsInATask.h"
#include "store/clsNewTask.h"
#include "store/clsVLProjectsList.h"
#include "toolkit/Failure.h"
#include "values/CNull.h"
#include "values/Convert.h"
#include "values/DateTimeFormatter.h"
#include "values/TaskUtil.h"
#include "values/TimeValues.h"

namespace qv {

namespace {

const char* const kLostChecklist = "The checklist formerly associated with this task could not be found.";
constexpr int32_t kRed = 255;
constexpr std::size_t kChecklistNameShown = 80;

RecordsetPtr openKeyed(clsNewTask& source, const std::string& sql) {
    RecordsetPtr rs;
    source.SetSQLKey(sql);
    if (!source.GetDataKEY(rs)) throw Failure(err::ObjectRequired, "Object required");
    return rs;
}

std::string text(Recordset& rs, const char* column) { return CNull::NVLStr(rs.Fields(column).value()); }

// A level's word by its stored index; beyond the list is a bound failure.
const std::string& levelWord(const std::array<std::string, 5>& list, int32_t index) {
    if (index < 0 || index >= static_cast<int32_t>(list.size()))
        throw Failure(err::SubscriptOutOfRange, "Subscript out of range");
    return list[static_cast<std::size_t>(index)];
}

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
    list.SetSQL("SELECT prjGUIDID, prjProject from PROJECTS ORDER BY prjProject");
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
    auto rs = openKeyed(source, "SELECT * from TASKAPPTS WHERE taGUIDID=" + sqlLiteral(g().CurrentTaskGUID));
    if (rs->RecordCount() != 1) {
        rs->Close();
        return false;
    }
    auto& c = f_.controls();
    c.spellTask.setText(text(*rs, "taTaskDesc"));
    Tool& project = c.smtABOUT.tool("PROJECT");
    project.setTag(text(*rs, "taprojectGUIDID"));
    project.setText(text(*rs, "taProject"));
    for (auto [key, column, list] : {std::tuple{"IMP", "taImp", &g().ImportanceList},
                                     std::tuple{"DIFF", "taDifficulty", &g().DifficultyList}}) {
        const int32_t index = rs->Fields(column).value().toInt32();
        Tool& level = c.smtABOUT.tool(key);
        level.setTag(std::to_string(index));
        level.setText(levelWord(*list, index));
    }
    f_.TATaskGUID = text(*rs, "taTaskGUIDID");
    const double start = rs->Fields("taStartTime").value().toDate().serial;
    const double end = rs->Fields("taEndTime").value().toDate().serial;
    const auto& format = DateTimeFormatter::current();
    c.smtTimes.tool("START").setText(format.longTime(timeOfDay(start)));
    c.smtTimes.tool("END").setText(format.longTime(timeOfDay(end)));
    c.ctTADate.setValue(std::floor(start));
    const Value worked = rs->Fields("taWasWorked").value();
    if (!worked.isNull()) c.smtTimes.tool("DONE").setText(worked.toBool() ? "Complete" : "Not Complete");
    const int32_t minutes = CNull::NVLLng(rs->Fields("taTimeWorked").value());
    c.smtTimes.tool("TIMESPENT").setText(minutes > 0 ? SetTimeFormat(minutes) : "0:00");
    rs->Close();
    return true;
}

void AppointmentLoader::readTask() {
    clsNewTask source;
    auto rs = openKeyed(source, "SELECT * from TASKS WHERE tskGUIDID=" + sqlLiteral(f_.TATaskGUID));
    if (rs->RecordCount() != 1) {
        rs->Close();
        return;
    }
    auto& c = f_.controls();
    c.smtReady.tool("POINTS").setText(std::to_string(CNull::NVLLng(rs->Fields("tskPossPoints").value())));
    c.SpellNotes.setText(text(*rs, "tskNotes"));
    const bool current = CNull::NVLBool(rs->Fields("tskCurrent").value());
    Tool& isCurrent = c.smtABOUT.tool("ISCURRENT");
    isCurrent.setTag(current ? "TRUE" : "FALSE");
    isCurrent.setText(current ? "Yes" : "No");
    for (auto [key, column] : {std::pair{"NEEDED", "tskTimeNeeded"}, std::pair{"SCHEDULED", "tskTimeScheduled"},
                               std::pair{"SPENT", "tskTimeSpent"}}) {
        const std::string shown = SetTimeFormat(CNull::NVLLng(rs->Fields(column).value()));
        Tool& t = c.smtABOUT.tool(key);
        t.setTag(shown);
        t.setText(shown);
    }
    const double deadline = CNull::NVLDate(rs->Fields("tskDeadline").value()).serial;
    if (deadline > 0) {
        Tool& t = c.smtABOUT.tool("DEADLINE");
        t.setText(DateTimeFormatter::current().generalDate(deadline));
        t.setForeColor(kRed);
        t.setBold(true);
    }
    showStatus(rs->Fields("tskStatus").value().toInt32());
    readChecklist(*rs);
    if (rs->State() == adStateOpen) rs->Close();
}

void AppointmentLoader::showStatus(int32_t status) {
    auto& c = f_.controls();
    Tool& t = c.smtABOUT.tool("STATUS");
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
    source.SetSQL("SELECT ckName, ckDesc, ckContent from CHECKLISTS WHERE ckGUIDID=" + sqlLiteral(key));
    if (!source.GetDataKEY(rs)) throw Failure(err::ObjectRequired, "Object required");
    auto& c = f_.controls();
    if (rs->RecordCount() == 1) {
        const std::string name = text(*rs, "ckName");
        c.lblCk.setCaption(frmTAS2::TrimtoLen(name, kChecklistNameShown) + " Checklist: ");
        state.utilChecklistName = name;
        c.spellCK.setText(text(*rs, "ckContent"));
        f_.setCKEditMode(1);
    } else {
        DialogMessages::inform(kLostChecklist);
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
