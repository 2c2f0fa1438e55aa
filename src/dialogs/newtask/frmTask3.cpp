#include "dialogs/newtask/frmTask3.h"

#include "dialogs/checklists/ChecklistLink.h"
#include "dialogs/newtask/NewTaskActions.h"
#include "dialogs/newtask/NewTaskCatalogItem.h"
#include "dialogs/newtask/NewTaskFields.h"
#include "dialogs/newtask/NewTaskLayout.h"
#include "dialogs/newtask/NewTaskPickers.h"
#include "dialogs/newtask/NewTaskReport.h"
#include "dialogs/newtask/NewTaskSaver.h"
#include "dialogs/newtask/NewTaskValidation.h"
#include "dialogs/shared/DraftKeeper.h"
#include "dialogs/shared/KeywordSheet.h"
#include "dialogs/shared/ProjectSheet.h"
#include "dialogs/shared/SheetPicks.h"
#include "dialogs/shared/ReportPrinter.h"
#include "dialogs/shared/SpellChecking.h"
#include "dialogs/shared/TrimtoLen.h"
#include "session/globals/SessionGlobals.h"
#include "store/ErrorPath.h"
#include "toolkit/Translate.h"
#include "values/settings/DateFormats.h"
#include "values/settings/Settings.h"
#include "values/types/TextChars.h"
#include "values/settings/TimeValues.h"

namespace qv {

namespace {
const char* const kModule = "frmTask3";
const char* const kNoChecklistText = QV_N("(Pick a Checklist...)");
}  // namespace

// Form_Initialize: the deadline's date box lives in DEADDATE.
frmTask3::frmTask3()
    : Form("frmTask3"),
      fields_(std::make_unique<NewTaskFields>(c_)),
      validation_(std::make_unique<NewTaskValidation>(*this)),
      saver_(std::make_unique<NewTaskSaver>(*this)),
      catalog_(std::make_unique<NewTaskCatalogItem>(*this)),
      actions_(std::make_unique<NewTaskActions>(*this)),
      pickers_(std::make_unique<NewTaskPickers>(*this)),
      layout_(std::make_unique<NewTaskLayout>(*this)),
      ckLink_(std::make_unique<ChecklistLink>(*this, c_.smtCKActions, c_.spellCK, c_.lblCk, fields_->checklist,
                                              ChecklistLink::Options{nullptr, tr(kNoChecklistText)})),
      printer_(std::make_shared<ReportPrinter>(*this, TaskReport::kNewTask, std::make_unique<NewTaskReport>(*this),
                                               kModule)) {
    c_.smtOther.tool("DEADDATE").setHostedControl("ctDeadline");
    registerControls();
    // The keeper hears each change before the dialog's handlers, which may
    // replace the tool (a new project refills the list).
    keepDrafts();
    wireControls();
}

frmTask3::~frmTask3() = default;

void frmTask3::keepDrafts() {
    DraftInputs in;
    in.picks = {&c_.smtOther, &c_.smtProj, &c_.smtKeywords, &c_.smtTimeNeeded, &c_.smtImp, &c_.smtDiff};
    in.texts = {{&c_.smtOther, {"STATUS", "DEADTIME"}}, {&c_.smtTimeNeeded, {"CUSTOMTIME"}}};
    in.dates = {&c_.ctDeadline, &c_.ctTheDateDone};
    in.editors = {&c_.spellTask, &c_.SpellNotes};
    drafts_ = std::make_unique<DraftKeeper>(*this, kModule, QV_N("The new task has changes from %1 that were not saved. Restore them?"), std::move(in));
}

void frmTask3::registerControls() {
    for (Sheet* s : {&c_.smtActions, &c_.smtOther, &c_.smtProj, &c_.smtReady, &c_.smtCKActions, &c_.smtKeywords,
                     &c_.smtTimeNeeded, &c_.smtImp, &c_.smtDiff})
        addControl(s->name(), *s);
    for (TextEditor* e : {&c_.spellTask, &c_.spellCK, &c_.SpellNotes}) addControl(e->name(), *e);
    addControl("ctDeadline", c_.ctDeadline);
    addControl("ctTheDateDone", c_.ctTheDateDone);
    addControl("cttheDateDone", c_.ctTheDateDone);
    addControl("startTimer", c_.startTimer);
    addControl("splitTask", c_.splitTask);
    for (Label* l : {&c_.lblTaskSaved, &c_.lblTask, &c_.lblCk, &c_.lblNotes}) addControl(l->name(), *l);
}

void frmTask3::wireControls() {
    wireSheets();
    auto& p = *pickers_;
    c_.spellTask.Change.connect([this, &p] { trapped("spellTask_Change", [&] { p.spellTask_Change(); }); });
    c_.ctDeadline.Change.connect([this, &p] { trapped("ctDeadline_Change", [&] { p.ctDeadline_Change(); }); });
    c_.startTimer.Tick.connect([this] { trapped("startTimer_Timer", [&] { startTimer_Timer(); }); });
    c_.splitTask.EndDrag.connect([this] { trapped("splitTask_SplitterEndDrag", [&] { layout_->SaveSplit(); }); });
    ckLink_->GotErrExitNow.connect([this] { GotErrExitNow(); });
}

void frmTask3::wireSheets() {
    auto& p = *pickers_;
    c_.smtActions.Click.connect(
        [this](Tool& t) { trapped("smtActions_Click", [&] { actions_->smtActions_Click(t); }); });
    c_.smtImp.Click.connect([this, &p](Tool& t) { trapped("smtImp_Click", [&] { p.smtLevels_Click(t); }); });
    c_.smtDiff.Click.connect([this, &p](Tool& t) { trapped("smtDiff_Click", [&] { p.smtLevels_Click(t); }); });
    c_.smtTimeNeeded.Click.connect(
        [this, &p](Tool& t) { trapped("smtTimeNeeded_Click", [&] { p.smtTimeNeeded_Click(t); }); });
    c_.smtProj.Click.connect([this, &p](Tool& t) { trapped("smtProj_Click", [&] { p.smtProj_Click(t); }); });
    c_.smtKeywords.Click.connect(
        [this, &p](Tool& t) { trapped("smtKeywords_Click", [&] { p.smtKeywords_Click(t); }); });
    c_.smtOther.Click.connect([this, &p](Tool& t) { trapped("smtOther_Click", [&] { p.smtOther_Click(t); }); });
    c_.smtOther.Change.connect([this, &p](Tool& t, const std::string& property) {
        trapped("smtOther_Change", [&] { p.smtOther_Change(t, property); });
    });
}

void frmTask3::Form_Load() {
    trapped("Form_Load", [&] {
        layout_->load();
        setCKEditMode(0);
    });
}

void frmTask3::SetupDetails() {
    trapped("SetupDetails", [&] {
        assignDateFormats({&c_.ctDeadline, &c_.ctTheDateDone}, kModule);
        setSpellChecking();
        fillLevelSheets();
        c_.smtProj.removeAll();
        if (!ProjectSheet::fillForSetup(c_.smtProj)) return;
        if (!KeywordSheet::build(c_.smtKeywords)) return;
        for (DateBox* d : {&c_.ctDeadline, &c_.ctTheDateDone}) d->setDayLetters(g().DateFormats[19]);
        layout_->place();
        c_.startTimer.setEnabled(true);
    });
}

void frmTask3::setSpellChecking() { applySpellChecking({&c_.spellTask, &c_.SpellNotes}); }

void frmTask3::fillLevelSheets() {
    const auto& s = g();
    SheetPicks::fillList(c_.smtOther.tool("STATUS"), "STATUS-", s.StatusList);
    SheetPicks::fillOptions(c_.smtImp, "IMP-", s.ImportanceList);
    SheetPicks::fillOptions(c_.smtDiff, "DIF-", s.DifficultyList);
    c_.smtTimeNeeded.removeAll();
    c_.smtTimeNeeded.add(ttTextBox, "CUSTOMTIME", tr("Other:")).setTip(tr("Examples: 0:18, 1:32, 5 12:00"));
    // The last label has no preset: the list stops one short.
    for (size_t i = 0; i + 1 < s.TimeNeededLabels.size(); ++i)
        c_.smtTimeNeeded.add(ttOption, "TIM-" + std::to_string(i), s.TimeNeededLabels[i])
            .setTag(std::to_string(s.TimeNeededMinutes.at(i)));
}

// While setting up it does nothing, so the tools keep their first state.
void frmTask3::setupActions() {
    if (g().SettingUp) return;
    for (const char* key : {"QV", "QV2", "TC", "PRINT"}) c_.smtActions.tool(key).setEnabled(false);
}

void frmTask3::SetProject(const std::string& projectKey) {
    trapped("SetProject", [&] { SheetPicks::checkByKey(c_.smtProj, projectKey); });
}

void frmTask3::SetProjectDefault() {
    trapped("SetProjectDefault", [&] { c_.smtProj.at(1).setChecked(true); });
}

bool frmTask3::GetTaskCatTASK() {
    return trapped("GetTaskCatTASK", [&] { return catalog_->GetTaskCatTASK(); });
}

void frmTask3::PackATask() {
    trapped("PackATask", [&] { fields_->PackATask(); });
}

bool frmTask3::ValidateTask() {
    return trapped("ValidateTask", [&] { return validation_->ValidateTask(); });
}

bool frmTask3::SaveTask() {
    return drafts_->after(trapped("SaveTask", [&] { return saver_->SaveTask(); }));
}

void frmTask3::setCKEditMode(int16_t mode) { ckLink_->setCKEditMode(mode); }

int16_t frmTask3::CheckListMode() const { return static_cast<int16_t>(fields_->checklist.CheckListMode); }

std::string frmTask3::TrimtoLen(const std::string& text, std::size_t limit) { return qv::TrimtoLen(text, limit); }

void frmTask3::setPrinter(std::shared_ptr<TaskPrinter> printer) {
    if (printer) printer_ = std::move(printer);
}

void frmTask3::resetLayout() {
    trapped("resetLayout", [&] { layout_->resetLayout(); });
}

// Once, 500 ms after the setup: the lowest levels and the first preset,
// except for a catalog item, then the first check.
void frmTask3::startTimer_Timer() {
    c_.startTimer.setEnabled(false);
    if (g().TaskMode != 6) {
        c_.smtDiff.at(1).setChecked(true);
        c_.smtImp.at(1).setChecked(true);
        c_.smtTimeNeeded.at(2).setChecked(true);
    }
    ValidateTask();
    // The dialog stands as the user first sees it: a draft is judged against that.
    const auto& s = g();
    drafts_->offer(s.TaskMode, s.TaskMode == 6 ? s.TaskCatGUID : std::string());
}

void frmTask3::Form_KeyDown(int32_t keyCode, int32_t /*shift*/) {
    trapped("Form_KeyDown", [&] { actions_->Form_KeyDown(keyCode); });
}

void frmTask3::Form_QueryUnload(bool& cancel, int32_t unloadMode) {
    trapped("Form_QueryUnload", [&] { actions_->Form_QueryUnload(cancel, unloadMode); });
}

// Every unload keeps the geometry and tells the session, also after a save.
void frmTask3::Form_Unload() {
    trapped("Form_Unload", [&] {
        c_.startTimer.setEnabled(false);
        layout_->onClose();
        CloseTaskForm();
    });
}

void frmTask3::Form_Resize() {
    trapped("Form_Resize", [&] { layout_->onResize(); });
}

}  // namespace qv
