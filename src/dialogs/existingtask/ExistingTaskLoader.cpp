#include "dialogs/existingtask/ExistingTaskLoader.h"

#include <cmath>
#include <optional>

#include "dialogs/existingtask/ExistingTaskFields.h"
#include "dialogs/existingtask/ExistingTaskKeywords.h"
#include "dialogs/existingtask/frmExistingTask.h"
#include "dialogs/shared/DialogMessages.h"
#include "dialogs/shared/ProjectSheet.h"
#include "dialogs/shared/SheetPicks.h"
#include "dialogs/shared/StoredRow.h"
#include "dialogs/shared/TaskRecord.h"
#include "dialogs/shared/TrimtoLen.h"
#include "session/globals/SessionGlobals.h"
#include "store/Recordset.h"
#include "store/StoreQueries.h"
#include "store/clsCheckLists.h"
#include "toolkit/Clock.h"
#include "toolkit/Failure.h"
#include "toolkit/Ports.h"
#include "toolkit/Translate.h"
#include "values/settings/DateFormats.h"
#include "values/types/DateTimeFormatter.h"
#include "values/settings/TimeValues.h"

namespace qv {

namespace {
const char* const kSpellSettings = "TarnvikQuorvel";
const char* const kLostChecklist = QV_N("The checklist formerly associated with this task could not be found.");
constexpr int32_t kRed = 255;
constexpr std::size_t kChecklistCaptionLimit = 80;
constexpr int32_t kNoCurrentRecord = 3021;

// A level's word and tag, or nothing for a level that can't be read.
void showLevel(Tool& tool, const std::array<std::string, 5>& list, std::optional<int32_t> n) {
    tool.setText(n ? list[static_cast<std::size_t>(*n)] : std::string());
    tool.setTag(n ? std::to_string(*n) : std::string());
}
}  // namespace

bool ExistingTaskLoader::fillLists() {
    auto& c = f_.controls();
    g().SettingUp = true;
    if (!assignDateFormats({&c.ctDeadline, &c.ctTheDateDone}, "frmExistingTask")) return false;
    setSpellChecking();
    const auto& s = g();
    SheetPicks::fillList(c.smtABOUT.tool("STATUS"), "STATUS-", s.StatusList);
    SheetPicks::fillList(c.smtABOUT.tool("IMP"), "IMP-",
                         std::vector<std::string>(s.ImportanceList.begin(), s.ImportanceList.end()));
    // The entries of "DIFF" are "DIF-": three letters, not the tool's key.
    SheetPicks::fillList(c.smtABOUT.tool("DIFF"), "DIF-",
                         std::vector<std::string>(s.DifficultyList.begin(), s.DifficultyList.end()));
    if (!ProjectSheet::fillList(c.smtABOUT.tool("PROJECT"), true)) return false;
    return f_.keywords().build();
}

void ExistingTaskLoader::setSpellChecking() {
    auto& c = f_.controls();
    const bool on = g().SpellCheckOn;
    for (TextEditor* e : {&c.spellTask, &c.SpellNotes}) {
        e->setSpellCheckOn(on);
        if (on) e->bindSettings(kSpellSettings);
    }
}

// The row stays open as TaskRow for the dialog's life. A key that finds no
// row fails on the first field read and takes the error path.
void ExistingTaskLoader::GetETASK() {
    auto& fields = f_.fields();
    g().SettingUp = true;
    if (!fields.openTaskRow()) return;
    Recordset& stored = *fields.TaskRow;
    if (stored.EOF_())
        throw Failure(kNoCurrentRecord, "Either BOF or EOF is True, or the current record has been deleted.");
    const bool catalog = g().TaskMode == 6;
    StoredRow row(stored, catalog ? "TASKSCAT" : "TASKS", catalog ? g().TaskCatGUID : g().CurrentTaskGUID);
    fillTexts(row);
    fillPicks(row);
    fillTimes(row);
    fillDeadline(row);
    fillStatus(row);
    f_.initSked();
    if (row.flag("tskHasSchedule", QV_N("Has Schedule"))) {
        f_.CountUpSked();
        fields.utilHasSchedule = true;
    } else {
        fields.utilHasSchedule = false;
    }
    fillChecklist(row);
    f_.keywords().tickFromStore();
    g().SettingUp = false;
    row.tell();
}

void ExistingTaskLoader::fillTexts(StoredRow& row) {
    auto& c = f_.controls();
    auto& r = f_.fields().record();
    r.Desc = row.text("tskDesc");
    row.setName(r.Desc);
    c.spellTask.setText(r.Desc);
    const auto points = row.number("tskPossPoints", QV_N("Possible Points"), true);
    c.smtReady.tool("POINTS").setCaption(points ? std::to_string(*points) : std::string());
    r.Notes = row.text("tskNotes");
    c.SpellNotes.setText(r.Notes);
}

// A level beyond its list is a bounds failure, as a stored 5 would be; a
// null or a text opens unset.
void ExistingTaskLoader::fillPicks(StoredRow& row) {
    auto& c = f_.controls();
    auto& r = f_.fields().record();
    const auto& s = g();
    Tool& project = c.smtABOUT.tool("PROJECT");
    project.setText(row.text("tskProject"));
    project.setTag(row.text("tskProjectKey"));
    showLevel(c.smtABOUT.tool("IMP"), s.ImportanceList, row.level("tskImp", QV_N("Importance"), s.ImportanceList.size()));
    showLevel(c.smtABOUT.tool("DIFF"), s.DifficultyList,
              row.level("tskDifficulty", QV_N("Difficulty"), s.DifficultyList.size()));
    Tool& current = c.smtABOUT.tool("ISCURRENT");
    r.IsCurrent = row.flag("tskCurrent", QV_N("Current"));
    current.setText(r.IsCurrent ? tr("Yes") : tr("No"));
    current.setTag(r.IsCurrent ? "TRUE" : "FALSE");
}

void ExistingTaskLoader::fillTimes(StoredRow& row) {
    auto& c = f_.controls();
    auto& r = f_.fields().record();
    const auto show = [&](const char* key, int32_t minutes) {
        Tool& t = c.smtABOUT.tool(key);
        t.setText(SetTimeFormat(minutes));
        t.setTag(t.text());
    };
    r.TimeNeeded = row.minutes("tskTimeNeeded", QV_N("Time Needed"));
    show("NEEDED", r.TimeNeeded);
    r.TimeScheduled = row.minutes("tskTimeScheduled", QV_N("Time Scheduled"));
    show("SCHEDULED", r.TimeScheduled);
    r.TimeSpent = row.minutes("tskTimeSpent", QV_N("Time Spent"));
    show("SPENT", r.TimeSpent);
    c.smtTimes.tool("TIMESPENT").setText(c.smtABOUT.tool("SPENT").text());
}

// A midnight deadline shows no time; one at or past now shows red and bold.
void ExistingTaskLoader::fillDeadline(StoredRow& row) {
    const auto stored = row.date("tskDeadline", QV_N("Deadline"));
    if (!stored) return;
    const double deadline = *stored;
    if (deadline <= kNoDate) return;
    auto& c = f_.controls();
    c.ctDeadline.setValue(deadline);
    const double timeOfDay = deadline - std::floor(deadline);
    if (timeOfDay > 0) c.smtABOUT.tool("DEADTIME").setText(DateTimeFormatter::current().longTime(timeOfDay));
    if (clock().now() >= deadline) {
        for (const char* key : {"DEADLINE", "DEADTIME"}) {
            c.smtABOUT.tool(key).setForeColor(kRed);
            c.smtABOUT.tool(key).setBold(true);
        }
    }
    f_.fields().record().Deadline = deadline;
}

// The first four statuses show their fixed words whatever the list says; a
// status that can't be read is the missing one.
void ExistingTaskLoader::fillStatus(StoredRow& row) {
    static const char* const kFixedWords[] = {"Completed", "In Progress", "On Hold", "Defined"};
    auto& c = f_.controls();
    const int32_t status = row.number("tskStatus", QV_N("Status")).value_or(kNothingChosen);
    Tool& tool = c.smtABOUT.tool("STATUS");
    Tool& done = c.smtReady.tool("DONE");
    f_.fields().record().Status = status;
    if (status >= 0 && status <= 3) {
        tool.setText(kFixedWords[status]);
    } else {
        const auto& list = g().StatusList;
        if (status < 0 || static_cast<std::size_t>(status) >= list.size()) return;
        tool.setText(list[static_cast<std::size_t>(status)]);
    }
    tool.setTag(std::to_string(status));
    tool.setBold(status == 0);
    done.setChecked(status == 0);
}

void ExistingTaskLoader::fillChecklist(StoredRow& row) {
    auto& ck = f_.fields().checklist;
    const std::string key = row.text("tskTCheckListGUID");
    ck.utilCheckListExists = false;
    if (key.empty()) return;
    clsCheckLists source;
    source.SetSQL(queries::checklistByKey(key));
    RecordsetPtr rs;
    if (!source.GetDataKEY(rs)) return;
    if (rs->EOF_()) {
        DialogMessages::inform(tr(kLostChecklist));
        return;
    }
    const std::string name = rs->Fields("ckName").value().toText();
    ck.utilCheckListExists = true;
    ck.utilChecklistKey = key;
    ck.utilChecklistName = name;
    f_.controls().lblCk.setCaption(tr(" Checklist: ") + TrimtoLen(name, kChecklistCaptionLimit));
    f_.controls().spellCK.setText(rs->Fields("ckContent").value().toText());
    f_.setCKEditMode(1);
    rs->Close();
}

}  // namespace qv
