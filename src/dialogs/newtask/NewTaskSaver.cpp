#include "dialogs/newtask/NewTaskSaver.h"

#include <cmath>
#include <optional>

#include "dialogs/newtask/NewTaskFields.h"
#include "dialogs/newtask/frmTask3.h"
#include "dialogs/shared/KeywordSheet.h"
#include "dialogs/shared/SettingUp.h"
#include "dialogs/shared/TaskColumns.h"
#include "dialogs/shared/TaskGuid.h"
#include "session/globals/SessionGlobals.h"
#include "store/Recordset.h"
#include "store/SaveTransaction.h"
#include "store/StoreQueries.h"
#include "store/clsNewTask.h"
#include "toolkit/Clock.h"
#include "toolkit/Ports.h"
#include "toolkit/Translate.h"
#include "values/types/TaskUtil.h"
#include "values/types/TextCase.h"

namespace qv {

namespace {

constexpr float kBannerSeconds = 0.4f;

// Queries that match nothing (no importance 6 exists): an updatable empty set.
std::optional<Query> addQuery(int32_t mode) {
    switch (mode) {
        case 0:
        case 6: return queries::newTaskRow();
        case 5: return queries::newCatalogRow();
        default: return std::nullopt;
    }
}

void resetEditor(TextEditor& editor, const std::string& text, double size) {
    editor.setText(text);
    editor.setFontName("Tahoma");
    editor.setFontSize(size);
    editor.setFontBold(false);
}

}  // namespace

bool NewTaskSaver::SaveTask() {
    if (!f_.ValidateTask()) return false;
    if (!writeTaskAndKeywords()) return false;
    {
        SettingUp raised;
        showBanner();
        resetForNext();
    }
    f_.ValidateTask();
    subDelay(kBannerSeconds);
    f_.controls().lblTaskSaved.setVisible(false);
    return true;
}

// One save: the task row with its keyword rows, committed before the caller
// tells the host. A failure among the keyword rows leaves the task row
// without them (and takes the error path); a killed process leaves neither.
bool NewTaskSaver::writeTaskAndKeywords() {
    SaveTransaction save;
    if (!writeTask()) return false;
    save.keepSoFar();
    if (!writeKeywords()) return false;
    save.commit();
    return true;
}

bool NewTaskSaver::writeTask() {
    clsNewTask task;
    RecordsetPtr rs;
    const int32_t mode = g().TaskMode;
    if (const auto query = addQuery(mode)) task.SetSQL(*query);
    if (!task.GetData(rs)) return false;
    rs->AddNew();
    writeColumns(*rs);
    writeChecklistLink(*rs, mode == 5);
    rs->Update();
    rs->UpdateBatch(adAffectAllChapters);
    rs->Close();
    return true;
}

void NewTaskSaver::writeColumns(Recordset& rs) {
    NewTaskFields& fields = f_.fields();
    const TaskRecord& r = fields.record();
    rs.Fields("tskStatus") = Value(r.Status);
    // A task born completed is done today, whatever the date box said.
    const double done = r.Status == 0 ? std::floor(clock().now()) : r.DateDone;
    rs.Fields("tskDoneDate") = std::lround(done) == 1 ? Value() : Value(Date{done});
    if (g().TaskMode == 6) rs.Fields("tskTaskCatGUID") = Value(g().TaskCatGUID);
    TaskColumns::writeNew(rs, r, fields.utilPossPoints);
}

// The two tables name the link column differently; the schema's own names.
void NewTaskSaver::writeChecklistLink(Recordset& rs, bool catalog) {
    const int16_t mode = f_.CheckListMode();
    if (mode != 1 && mode != 2) return;
    rs.Fields(catalog ? "tskCheckListGUID" : "tskTCheckListGUID") = Value(f_.fields().record().ChecklistKey);
    if (mode == 1) rs.Fields("tskHasChecklist") = Value(true);
}

bool NewTaskSaver::writeKeywords() {
    clsNewTask links;
    RecordsetPtr rs;
    const std::string guid = utilNewTaskGUID();
    links.SetSQLKey(queries::keywordLinksOfTask(guid));
    if (!links.GetDataKEY(rs)) return false;
    KeywordSheet::addLinksFromBag(*rs, f_.controls().smtKeywords, f_.fields().record().KeywordList,
                                  f_.controls().spellTask.text(), guid);
    rs->Close();
    return true;
}

void NewTaskSaver::showBanner() {
    Label& banner = f_.controls().lblTaskSaved;
    banner.setCaption(g().TaskMode == 5 ? tr("Task added to Task Catalog.") : tr("Task added to Quorvel."));
    banner.setVisible(true);
}

// The project, levels, time, keywords and the current box carry over, so
// a series of like tasks needs only new descriptions.
void NewTaskSaver::resetForNext() {
    auto& c = f_.controls();
    auto& fields = f_.fields();
    auto& r = fields.record();
    c.ctDeadline.setValue(1.0);
    fields.writeDeadTime("");
    c.smtOther.tool("STATUS").setText(g().StatusList.at(3));
    r.Deadline = kNoDate;
    r.Status = 3;
    g().CurrentTaskGUID.clear();
    resetEditor(c.spellTask, "", 11);
    resetEditor(c.spellCK, tr("(Pick a checklist...)"), 10);
    c.lblCk.setCaption(tr("Checklist"));
    c.lblCk.setAlignment(Label::AlignCenter);
    r.HasChecklist = false;
    r.ChecklistKey.clear();
    fields.checklist.utilCheckListExists = false;
    resetEditor(c.SpellNotes, "", 8);
    f_.setCKEditMode(0);
}

}  // namespace qv

