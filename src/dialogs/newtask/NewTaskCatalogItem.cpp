#include "dialogs/newtask/NewTaskCatalogItem.h"

#include <cmath>
#include <optional>

#include "dialogs/newtask/NewTaskFields.h"
#include "dialogs/newtask/frmTask3.h"
#include "dialogs/shared/DialogMessages.h"
#include "dialogs/shared/KeywordSheet.h"
#include "dialogs/shared/SheetPicks.h"
#include "dialogs/shared/StoredRow.h"
#include "dialogs/shared/TaskRecord.h"
#include "session/globals/SessionGlobals.h"
#include "store/Recordset.h"
#include "store/StoreQueries.h"
#include "store/clsChecklistsInATask.h"
#include "store/clsNewTask.h"
#include "toolkit/Clock.h"
#include "toolkit/Ports.h"
#include "toolkit/Translate.h"
#include "values/types/CNull.h"
#include "values/types/DateTimeFormatter.h"
#include "values/settings/TimeValues.h"

namespace qv {

namespace {

constexpr int32_t kRed = 255;

// The first four status words are fixed here, whatever the settings say;
// nothing for a status beyond the list.
std::optional<std::string> statusWord(int32_t status) {
    switch (status) {
        case 0: return "Completed";
        case 1: return "In Progress";
        case 2: return "On Hold";
        case 3: return "Defined";
        default: break;
    }
    const auto& list = g().StatusList;
    if (status < 0 || static_cast<size_t>(status) >= list.size()) return std::nullopt;
    return list[static_cast<size_t>(status)];
}

}  // namespace

bool NewTaskCatalogItem::GetTaskCatTASK() {
    auto& s = g();
    s.SettingUp = true;
    clsNewTask item;
    RecordsetPtr rs;
    item.SetSQL(queries::catalogItemByKey(s.TaskCatGUID));
    if (!item.GetData(rs)) return false;
    StoredRow row(*rs, "TASKSCAT", s.TaskCatGUID);
    fillTexts(row);
    fillPicks(row);
    fillTimeNeeded(row);
    fillDeadline(row);
    fillStatus(row);
    f_.fields().utilHasSchedule = row.number("tskHasSchedule", QV_N("Has Schedule"), true) == -1;
    const bool linked = fillChecklist(row);
    rs->Close();
    row.tell();
    if (!linked) return false;
    // The item's links stand under its own key; this one is empty, so none come.
    KeywordSheet::tickFromLinks(f_.controls().smtKeywords, s.CurrentTaskGUID);
    f_.controls().smtActions.tool("QV").setEnabled(true);
    s.SettingUp = false;
    f_.ValidateTask();
    return true;
}

void NewTaskCatalogItem::fillTexts(StoredRow& rs) {
    rs.setName(rs.text("tskDesc"));
    f_.controls().spellTask.setText(rs.text("tskDesc"));
    f_.controls().SpellNotes.setText(rs.text("tskNotes"));
}

void NewTaskCatalogItem::fillPicks(StoredRow& rs) {
    auto& c = f_.controls();
    SheetPicks::checkByKey(c.smtProj, rs.text("tskProjectKey"));
    // A level beyond the sheet's positions goes to the error path, named.
    if (const auto imp = rs.level("tskImp", QV_N("Importance"), static_cast<size_t>(c.smtImp.count())))
        c.smtImp.at(*imp + 1).setChecked(true);
    if (const auto diff = rs.level("tskDifficulty", QV_N("Difficulty"), static_cast<size_t>(c.smtDiff.count())))
        c.smtDiff.at(*diff + 1).setChecked(true);
    c.smtOther.tool("ISCURRENT").setChecked(rs.flag("tskCurrent", QV_N("Current")));
}

void NewTaskCatalogItem::fillTimeNeeded(StoredRow& rs) {
    auto& sheet = f_.controls().smtTimeNeeded;
    const int32_t needed = rs.minutes("tskTimeNeeded", QV_N("Time Needed"));
    const std::string tag = std::to_string(needed);
    bool matched = false;
    for (const auto& t : sheet.tools()) {
        if (t->tag() == tag) {
            t->setChecked(true);
            matched = true;
            break;
        }
    }
    if (!matched)
        if (Tool* custom = sheet.find("CUSTOMTIME")) custom->setText(SetTimeFormat(needed));
    auto& r = f_.fields().record();
    r.TimeNeeded = needed;
    r.TimeScheduled = rs.minutes("tskTimeScheduled", QV_N("Time Scheduled"));
    r.TimeSpent = rs.minutes("tskTimeSpent", QV_N("Time Spent"));
}

// A deadline that has passed shows red and bold.
void NewTaskCatalogItem::fillDeadline(StoredRow& rs) {
    const double deadline = rs.date("tskDeadline", QV_N("Deadline")).value_or(0.0);
    if (deadline <= 1.0) return;
    auto& c = f_.controls();
    c.ctDeadline.setValue(deadline);
    const double timePart = deadline - std::floor(deadline);
    if (timePart > 0) f_.fields().writeDeadTime(DateTimeFormatter::current().longTime(timePart));
    if (clock().now() >= deadline) {
        for (const char* key : {"DEADDATE", "DEADTIME"}) {
            c.smtOther.tool(key).setForeColor(kRed);
            c.smtOther.tool(key).setBold(true);
        }
    }
    f_.fields().record().Deadline = deadline;
}

void NewTaskCatalogItem::fillStatus(StoredRow& rs) {
    int32_t status = rs.number("tskStatus", QV_N("Status")).value_or(kNothingChosen);
    auto word = statusWord(status);
    if (!word && status != kNothingChosen) rs.unshown("tskStatus", QV_N("Status"));
    if (!word) status = kNothingChosen;
    Tool& tool = f_.controls().smtOther.tool("STATUS");
    tool.setText(word.value_or(std::string()));
    tool.setTag(std::to_string(status));
    tool.setBold(status == 0);
    f_.fields().record().Status = status;
}

bool NewTaskCatalogItem::fillChecklist(StoredRow& rs) {
    auto& fields = f_.fields();
    const int32_t has = rs.number("tskHasChecklist", QV_N("Has Checklist"), true).value_or(0);
    if (has == 0) {
        fields.checklist.utilCheckListExists = false;
        fields.checklist.utilChecklistKey.clear();
        f_.setCKEditMode(0);
        fields.record().HasChecklist = false;
        return true;
    }
    if (has != -1) return true;
    fields.checklist.utilCheckListExists = true;
    fields.checklist.utilChecklistKey = rs.text("tskCheckListGUID");
    return linkChecklist(fields.checklist.utilChecklistKey);
}

bool NewTaskCatalogItem::linkChecklist(const std::string& key) {
    clsChecklistsInATask checklist;
    RecordsetPtr rs;
    checklist.SetSQL(queries::checklistOfCatalogItem(key));
    if (!checklist.GetDataKEY(rs)) return false;
    if (rs->RecordCount() != 1) {
        rs->Close();
        DialogMessages::inform(tr("Unable to find the checklist associated with this item. Perhaps it was deleted?"));
        return false;
    }
    auto& c = f_.controls();
    f_.fields().checklist.utilChecklistName = CNull::NVLStr(rs->Fields("ckName").value());
    c.spellCK.setText(CNull::NVLStr(rs->Fields("ckContent").value()));
    c.lblCk.setCaption(tr("Checklist: ") + frmTask3::TrimtoLen(f_.fields().checklist.utilChecklistName, 80));
    c.lblCk.setAlignment(Label::AlignLeft);
    f_.setCKEditMode(2);
    f_.fields().record().HasChecklist = true;
    rs->Close();
    return true;
}

}  // namespace qv
