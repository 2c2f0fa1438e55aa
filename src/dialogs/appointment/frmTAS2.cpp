#include "dialogs/appointment/frmTAS2.h"

#include "dialogs/appointment/AppointmentActions.h"
#include "dialogs/appointment/AppointmentLayout.h"
#include "dialogs/appointment/AppointmentLoader.h"
#include "dialogs/appointment/AppointmentReport.h"
#include "dialogs/appointment/AppointmentSaver.h"
#include "dialogs/appointment/AppointmentTimes.h"
#include "dialogs/shared/SpellChecking.h"
#include "dialogs/shared/DraftKeeper.h"
#include "dialogs/shared/ReportPrinter.h"
#include "dialogs/shared/TrimtoLen.h"
#include "session/globals/SessionGlobals.h"
#include "store/Recordset.h"
#include "store/ErrorPath.h"
#include "toolkit/Translate.h"
#include "values/settings/DateFormats.h"

namespace qv {

namespace {
const char* const kModule = "frmTAS2";
const char* const kNoChecklist = "-NONE";
constexpr std::size_t kGuidLength = 36;
}  // namespace

// Form_Initialize: the appointment's day lives in the tool "DATE".
frmTAS2::frmTAS2()
    : Form("frmTAS2"),
      loader_(std::make_unique<AppointmentLoader>(*this)),
      saver_(std::make_unique<AppointmentSaver>(*this)),
      times_(std::make_unique<AppointmentTimes>(*this)),
      actions_(std::make_unique<AppointmentActions>(*this)),
      layout_(std::make_unique<AppointmentLayout>(*this)),
      ckLink_(std::make_unique<ChecklistLink>(*this, c_.smtCKActions, c_.spellCK, c_.lblCk, checklist)),
      printer_(std::make_shared<ReportPrinter>(*this, TaskReport::kTaskAppointment,
                                               std::make_unique<AppointmentReport>(*this), kModule)) {
    g().SettingUp = true;
    c_.smtTimes.tool("DATE").setHostedControl("ctTADate");
    registerControls();
    // The keeper hears each change before the dialog's handlers, which may
    // replace the tool (a new project refills the list).
    keepDrafts();
    wireControls();
}

frmTAS2::~frmTAS2() = default;

void frmTAS2::keepDrafts() {
    DraftInputs in;
    in.picks = {&c_.smtReady};
    in.texts = {{&c_.smtTimes, {"START", "END", "DONE", "TIMESPENT"}},
                {&c_.smtABOUT, {"STATUS", "PROJECT", "IMP", "DIFF", "ISCURRENT", "NEEDED", "SPENT", "DEADLINE"}}};
    in.dates = {&c_.ctTADate};
    in.editors = {&c_.spellTask, &c_.SpellNotes};
    drafts_ = std::make_unique<DraftKeeper>(*this, kModule, QV_N("This task appointment has changes from %1 that were not saved. Restore them?"), std::move(in));
    drafts_->offerStoredRowWhenShown();
}

void frmTAS2::registerControls() {
    for (Sheet* s : {&c_.smtTimes, &c_.smtReady, &c_.smtABOUT, &c_.smtActions, &c_.smtCKActions})
        addControl(s->name(), *s);
    for (TextEditor* e : {&c_.spellTask, &c_.SpellNotes, &c_.spellCK}) addControl(e->name(), *e);
    addControl("ctTADate", c_.ctTADate);
    addControl("Timer1", c_.Timer1);
    addControl("splitTAS", c_.splitTAS);
    addControl("Tabs1", c_.Tabs1);
    for (Label* l : {&c_.lblTask, &c_.lblCk, &c_.lblNotes}) addControl(l->name(), *l);
}

void frmTAS2::wireControls() {
    wireSheets();
    c_.splitTAS.EndDrag.connect([this] { trapped("splitTAS_SplitterEndDrag", [&] { layout_->onEndDrag(); }); });
    c_.Tabs1.Switching.connect([this](int32_t tab) { trapped("Tabs1_Switching", [&] { SetVisibleTab(tab); }); });
    ckLink_->GotErrExitNow.connect([this] { GotErrExitNow(); });
}

void frmTAS2::wireSheets() {
    auto& t = *times_;
    c_.smtActions.Click.connect(
        [this](Tool& tool) { trapped("smtActions_Click", [&] { actions_->smtActions_Click(tool); }); });
    c_.smtReady.Click.connect(
        [this](Tool& tool) { trapped("smtReady_Click", [&] { actions_->smtReady_Click(tool); }); });
    c_.smtTimes.Click.connect([this, &t](Tool& tool) { trapped("smtTimes_Click", [&] { t.smtTimes_Click(tool); }); });
    c_.smtTimes.BeforeEdit.connect([this, &t](Tool& tool, bool& cancel) {
        trapped("smtTimes_BeforeEdit", [&] { t.smtTimes_BeforeEdit(tool, cancel); });
    });
    c_.smtTimes.AfterEdit.connect(
        [this, &t](Tool& tool) { trapped("smtTimes_AfterEdit", [&] { t.smtTimes_AfterEdit(tool); }); });
    c_.smtTimes.Change.connect([this, &t](Tool& tool, const std::string&) {
        trapped("smtTimes_Change", [&] { t.smtTimes_Change(tool); });
    });
    c_.smtABOUT.Change.connect([this, &t](Tool& tool, const std::string&) {
        trapped("smtABOUT_Change", [&] { t.smtABOUT_Change(tool); });
    });
}

void frmTAS2::Form_Load() {
    trapped("Form_Load", [&] {
        currentTab = tabChecklist;
        SetVisibleTab(currentTab);
    });
}

void frmTAS2::SetupDetails() {
    trapped("SetupDetails", [&] {
        auto& s = g();
        s.SettingUp = true;
        assignDateFormats({&c_.ctTADate}, kModule);
        applySpellChecking({&c_.spellTask, &c_.SpellNotes});
        loader_->fillLists();
        if (s.CurrentTaskGUID.size() == kGuidLength && s.TaskMode == 2) GetTAS();
        s.SettingUp = true;
        loadedChecklistKey_ = checklist.utilChecklistKey;
        layout_->restore();
    });
}

void frmTAS2::GetTAS() {
    trapped("GetTAS", [&] { loader_->GetTAS(); });
}

bool frmTAS2::ValidateTask() {
    return trapped("ValidateTask", [&] { return saver_->ValidateTask(); });
}

bool frmTAS2::UpdateTASTask(const std::string&) {
    return drafts_->after(trapped("UpdateTASTask", [&] { return saver_->UpdateTASTask(); }));
}

void frmTAS2::StartTHETimer() {
    trapped("StartTHETimer", [&] { times_->StartTHETimer(); });
}

void frmTAS2::StopTHETimer() {
    trapped("StopTHETimer", [&] { times_->StopTHETimer(); });
}

void frmTAS2::SetVisibleTab(int32_t index) {
    trapped("SetVisibleTab", [&] { layout_->SetVisibleTab(index); });
}

std::string frmTAS2::getTATimeNeeded() {
    return trapped("getTATimeNeeded", [&] { return loader_->getTATimeNeeded(); });
}

void frmTAS2::setCKEditMode(int16_t mode) { ckLink_->setCKEditMode(mode); }

std::string frmTAS2::TrimtoLen(const std::string& text, std::size_t limit) { return qv::TrimtoLen(text, limit); }

void frmTAS2::followChecklist() {
    if (checklist.utilChecklistKey == loadedChecklistKey_) return;
    TACheckListGUID = checklist.utilCheckListExists ? checklist.utilChecklistKey : kNoChecklist;
}

void frmTAS2::setPrinter(std::shared_ptr<TaskPrinter> printer) {
    if (printer) printer_ = std::move(printer);
}

void frmTAS2::Form_KeyDown(int32_t keyCode, int32_t) {
    trapped("Form_KeyDown", [&] { actions_->Form_KeyDown(keyCode); });
}

// The window's close box: the question, then the geometry and the settings,
// then the session closes the dialog.
void frmTAS2::Form_QueryUnload(bool& cancel, int32_t unloadMode) {
    trapped("Form_QueryUnload", [&] {
        if (!actions_->Form_QueryUnload(unloadMode)) {
            cancel = true;
            return;
        }
        layout_->onClose();
        geometrySaved_ = true;
        CancelTASEdit();
    });
}

// The stopwatch stops ticking with the dialog; closes by the program keep
// the geometry here.
void frmTAS2::Form_Unload() {
    trapped("Form_Unload", [&] {
        c_.Timer1.setEnabled(false);
        SlotRow.reset();
        TaskRow.reset();
        if (!geometrySaved_) layout_->onClose();
        geometrySaved_ = true;
    });
}

void frmTAS2::Form_Resize() {
    if (g().SettingUp) return;
    trapped("Form_Resize", [&] { layout_->onResize(); });
}

}  // namespace qv
