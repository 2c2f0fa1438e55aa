#include "dialogs/newtask/NewTaskCatalogItem.h"

#include <cmath>

#include "dialogs/newtask/NewTaskFields.h"
#include "dialogs/newtask/frmTask3.h"
#include "dialogs/shared/DialogMessages.h"
#include "dialogs/shared/KeywordSheet.h"
#include "dialogs/shared/SheetPicks.h"
#include "session/globals/SessionGlobals.h"
#include "store/Recordset.h"
#include "store/clsChecklistsInATask.h"
#include "store/clsNewTask.h"
#include "toolkit/Clock.h"
#include "toolkit/Ports.h"
#include "values/CNull.h"
#include "values/DateTimeFormatter.h"
#include "values/TimeValues.h"

namespace qv {

namespace {

constexpr int32_t kRed = 255;

// The first four status words are fixed here, whatever the settings say.
std::string statusWord(int32_t status) {
    switch (status) {
        case 0: return "Completed";
        case 1: return "In Progress";
        case 2: return "On Hold";
        case 3: return "Defined";
        default: return g().StatusList.at(static_cast<size_t>(status));
    }
}

}  // namespace

bool NewTaskCatalogItem::GetTaskCatTASK() {
    auto& s = g();
    s.SettingUp = true;
    clsNewTask item;
    RecordsetPtr rs;
    item.SetSQL("SELECT * from TASKSCAT WHERE tskGUIDID=" + sqlLiteral(s.TaskCatGUID));
    if (!item.GetData(rs)) return false;
    fillTexts(*rs);
    fillPicks(*rs);
    fillTimeNeeded(*rs);
    fillDeadline(*rs);
    fillStatus(*rs);
    f_.fields().utilHasSchedule = CNull::NVLLng(rs->Fields("tskHasSchedule").value()) == -1;
    const bool linked = fillChecklist(*rs);
    rs->Close();
    if (!linked) return false;
    // The item's links stand under its own key; this one is empty, so none come.
    KeywordSheet::tickFromLinks(f_.controls().smtKeywords, s.CurrentTaskGUID);
    f_.controls().smtActions.tool("QV").setEnabled(true);
    s.SettingUp = false;
    f_.ValidateTask();
    return true;
}

void NewTaskCatalogItem::fillTexts(Recordset& rs) {
    f_.controls().spellTask.setText(CNull::NVLStr(rs.Fields("tskDesc").value()));
    f_.controls().SpellNotes.setText(CNull::NVLStr(rs.Fields("tskNotes").value()));
}

void NewTaskCatalogItem::fillPicks(Recordset& rs) {
    auto& c = f_.controls();
    SheetPicks::checkByKey(c.smtProj, CNull::NVLStr(rs.Fields("tskProjectKey").value()));
    c.smtImp.at(rs.Fields("tskImp").value().toInt32() + 1).setChecked(true);
    c.smtDiff.at(rs.Fields("tskDifficulty").value().toInt32() + 1).setChecked(true);
    c.smtOther.tool("ISCURRENT").setChecked(CNull::NVLBool(rs.Fields("tskCurrent").value()));
}

void NewTaskCatalogItem::fillTimeNeeded(Recordset& rs) {
    auto& sheet = f_.controls().smtTimeNeeded;
    const int32_t needed = CNull::NVLLng(rs.Fields("tskTimeNeeded").value());
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
    r.TimeScheduled = CNull::NVLLng(rs.Fields("tskTimeScheduled").value());
    r.TimeSpent = CNull::NVLLng(rs.Fields("tskTimeSpent").value());
}

// A deadline that has passed shows red and bold.
void NewTaskCatalogItem::fillDeadline(Recordset& rs) {
    const double deadline = CNull::NVLDate(rs.Fields("tskDeadline").value(), Date{0.0}).serial;
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

void NewTaskCatalogItem::fillStatus(Recordset& rs) {
    const int32_t status = CNull::NVLLng(rs.Fields("tskStatus").value());
    Tool& tool = f_.controls().smtOther.tool("STATUS");
    tool.setText(statusWord(status));
    tool.setTag(std::to_string(status));
    tool.setBold(status == 0);
    f_.fields().record().Status = status;
}

bool NewTaskCatalogItem::fillChecklist(Recordset& rs) {
    auto& fields = f_.fields();
    const int32_t has = CNull::NVLLng(rs.Fields("tskHasChecklist").value());
    if (has == 0) {
        fields.checklist.utilCheckListExists = false;
        fields.checklist.utilChecklistKey.clear();
        f_.setCKEditMode(0);
        fields.record().HasChecklist = false;
        return true;
    }
    if (has != -1) return true;
    fields.checklist.utilCheckListExists = true;
    fields.checklist.utilChecklistKey = CNull::NVLStr(rs.Fields("tskCheckListGUID").value());
    return linkChecklist(fields.checklist.utilChecklistKey);
}

bool NewTaskCatalogItem::linkChecklist(const std::string& key) {
    clsChecklistsInATask checklist;
    RecordsetPtr rs;
    checklist.SetSQL("SELECT ckGUIDID, ckName, ckContent from CHECKLISTS WHERE ckGUIDID =" + sqlLiteral(key));
    if (!checklist.GetDataKEY(rs)) return false;
    if (rs->RecordCount() != 1) {
        rs->Close();
        DialogMessages::inform("Unable to find the checklist associated with this item. Perhaps it was deleted?");
        return false;
    }
    auto& c = f_.controls();
    f_.fields().checklist.utilChecklistName = CNull::NVLStr(rs->Fields("ckName").value());
    c.spellCK.setText(CNull::NVLStr(rs->Fields("ckContent").value()));
    c.lblCk.setCaption("Checklist: " + frmTask3::TrimtoLen(f_.fields().checklist.utilChecklistName, 80));
    c.lblCk.setAlignment(Label::AlignLeft);
    f_.setCKEditMode(2);
    f_.fields().record().HasChecklist = true;
    rs->Close();
    return true;
}

}  // namespace qv
