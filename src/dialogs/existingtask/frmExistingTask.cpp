#include "dialogs/existingtask/frmExistingTask.h"

#include "dialogs/checklists/ChecklistLink.h"
#include "dialogs/existingtask/ExistingTaskActions.h"
#include "dialogs/existingtask/ExistingTaskCatalogSave.h"
#include "dialogs/existingtask/ExistingTaskFields.h"
#include "dialogs/existingtask/ExistingTaskKeywords.h"
#include "dialogs/existingtask/ExistingTaskLayout.h"
#include "dialogs/existingtask/ExistingTaskLoader.h"
#include "dialogs/existingtask/ExistingTaskReport.h"
#include "dialogs/existingtask/ExistingTaskUpdater.h"
#include "dialogs/existingtask/ExistingTaskValidation.h"
#include "dialogs/existingtask/ScheduleGrid.h"
#include "dialogs/shared/ProjectSheet.h"
#include "dialogs/shared/DraftKeeper.h"
#include "dialogs/shared/ReportPrinter.h"
#include "dialogs/shared/TaskPrinter.h"
#include "dialogs/shared/TrimtoLen.h"
#include "session/globals/SessionGlobals.h"
#include "store/ErrorPath.h"
#include "toolkit/Translate.h"
#include "values/settings/WindowGeometry.h"

namespace qv {

namespace {
const char* const kModule = "frmExistingTask";
constexpr std::size_t kGuidLength = 36;
}  // namespace

// Form_Initialize: setting up from the start; the deadline's date box
// lives in "DEADLINE".
frmExistingTask::frmExistingTask()
    : Form(kModule),
      fields_(std::make_unique<ExistingTaskFields>(c_)),
      loader_(std::make_unique<ExistingTaskLoader>(*this)),
      validation_(std::make_unique<ExistingTaskValidation>(*this)),
      updater_(std::make_unique<ExistingTaskUpdater>(*this)),
      keywords_(std::make_unique<ExistingTaskKeywords>(*this)),
      catalog_(std::make_unique<ExistingTaskCatalogSave>(*this)),
      actions_(std::make_unique<ExistingTaskActions>(*this)),
      ckLink_(std::make_unique<ChecklistLink>(*this, c_.smtCKActions, c_.spellCK, c_.lblCk,
                                              fields_->checklist,
                                              ChecklistLink::Options{&c_.smtActions, {}})),
      // Page Setup saved here also goes to the host as its print settings.
      printer_(std::make_shared<ReportPrinter>(*this, TaskReport::kExistingTask,
                                               std::make_unique<ExistingTaskReport>(*this), kModule,
                                               [this] { SavePrintInfoNowHere(); })) {
    sked_ = std::make_unique<ScheduleGrid>(
        c_.smtABOUT, c_.smtSkedTimes, c_.smtTimes,
        ScheduleGrid::Hooks{
            [this]() -> const TaskRecord& {
                PackATask();
                return fields_->record();
            },
            [this] { ValidateTask(); }, [this](int32_t n) { fields_->SkedRowCount = n; },
            [this](const char* procedure, const std::function<void()>& body) { trapped(procedure, body); }});
    layout_ =
        std::make_unique<ExistingTaskLayout>(*this, c_.splitTask, c_.Tabs1, *sked_, fields_->VisibleTab);
    g().SettingUp = true;
    c_.smtABOUT.tool("DEADLINE").setHostedControl("ctDeadline");
    registerControls();
    // The keeper hears each change before the dialog's handlers, which may
    // replace the tool (a new project refills the list).
    keepDrafts();
    wireControls();
}

frmExistingTask::~frmExistingTask() = default;

void frmExistingTask::keepDrafts() {
    DraftInputs in;
    in.picks = {&c_.smtReady, &c_.smtKeywords};
    in.texts = {{&c_.smtABOUT, {"STATUS", "ISCURRENT", "DEADTIME", "PROJECT", "IMP", "DIFF", "NEEDED", "SPENT"}},
                {&c_.smtTimes, {"TIMESPENT"}}};
    in.dates = {&c_.ctDeadline, &c_.ctTheDateDone};
    in.editors = {&c_.spellTask, &c_.SpellNotes};
    drafts_ = std::make_unique<DraftKeeper>(*this, kModule, QV_N("This task has changes from %1 that were not saved. Restore them?"), std::move(in));
    drafts_->offerStoredRowWhenShown();
}

void frmExistingTask::registerControls() {
    for (Sheet* s : {&c_.smtABOUT, &c_.smtKeywords, &c_.smtReady, &c_.smtActions, &c_.smtCKActions,
                     &c_.smtSkedBtns, &c_.smtSkedTimes, &c_.smtTimes})
        addControl(s->name(), *s);
    for (TextEditor* e : {&c_.spellTask, &c_.SpellNotes, &c_.spellCK}) addControl(e->name(), *e);
    addControl("ctDeadline", c_.ctDeadline);
    addControl("ctTheDateDone", c_.ctTheDateDone);
    addControl("cttheDateDone", c_.ctTheDateDone);
    addControl("Timer1", c_.Timer1);
    addControl("Timer2", c_.Timer2);
    addControl("splitTask", c_.splitTask);
    addControl("Tabs1", c_.Tabs1);
    addControl("gridSked", sked_->gridSked());
    for (Label* l : {&c_.lblTask, &c_.lblNotes, &c_.lblCk}) addControl(l->name(), *l);
}

void frmExistingTask::wireControls() {
    wireSheets();
    auto& v = *validation_;
    c_.spellTask.Change.connect([this, &v] { trapped("spellTask_Change", [&] { v.textChanged(); }); });
    c_.SpellNotes.Change.connect([this, &v] { trapped("SpellNotes_Change", [&] { v.textChanged(); }); });
    c_.ctDeadline.Change.connect(
        [this, &v] { trapped("ctDeadline_Change", [&] { v.ctDeadline_Change(); }); });
    c_.Timer2.Tick.connect([this] { trapped("Timer2_Timer", [&] { actions_->Timer2_Timer(); }); });
    ckLink_->GotErrExitNow.connect([this] { GotErrExitNow(); });
    wireLayout();
}

void frmExistingTask::wireLayout() {
    auto& l = *layout_;
    auto& k = *sked_;
    c_.splitTask.EndDrag.connect(
        [this, &l] { trapped("splitTask_SplitterEndDrag", [&] { l.splitTask_SplitterEndDrag(); }); });
    c_.Tabs1.Switching.connect(
        [this, &l](int32_t tab) { trapped("Tabs1_Switching", [&] { l.Tabs1_Switching(tab); }); });
    k.gridSked().Resized.connect(
        [this, &l] { trapped("SSResizer1_ResizeComplete", [&] { l.gridSked_Resized(); }); });
    c_.smtSkedBtns.Click.connect(
        [this, &k](Tool& t) { trapped("smtSkedBtns_Click", [&] { k.smtSkedBtns_Click(t); }); });
    c_.smtSkedTimes.Click.connect(
        [this, &k](Tool& t) { trapped("smtSkedTimes_Click", [&] { k.smtSkedTimes_Click(t); }); });
}

void frmExistingTask::wireSheets() {
    auto& a = *actions_;
    auto& v = *validation_;
    c_.smtActions.Click.connect(
        [this, &a](Tool& t) { trapped("smtActions_Click", [&] { a.smtActions_Click(t); }); });
    c_.smtABOUT.Change.connect([this](Tool& t, const std::string& property) {
        trapped("smtABOUT_Change", [&] { smtABOUT_Change(t, property); });
    });
    // A finished edit is the sheet's click: the check and the dirty flag.
    // The status and "New Project" have run their own check already.
    c_.smtABOUT.AfterEdit.connect([this, &v](Tool& t) {
        if (t.key() == "STATUS" || (t.key() == "PROJECT" && t.text() == tr("New Project"))) return;
        trapped("smtABOUT_Click", [&] { v.smtABOUT_Click(); });
    });
    // "New Project" is a button among the entries: choosing it puts its
    // caption in the list, as choosing an entry does.
    c_.smtABOUT.Click.connect([this, &v](Tool& t) {
        if (t.key() == ProjectSheet::kNewProjectKey && t.parent()) {
            if (!g().SettingUp) c_.smtABOUT.userChoose(*t.parent(), t.caption());
            return;
        }
        trapped("smtABOUT_Click", [&] { v.smtABOUT_Click(); });
    });
    c_.smtReady.Click.connect(
        [this, &v](Tool& t) { trapped("smtReady_Click", [&] { v.smtReady_Click(t); }); });
    c_.smtKeywords.Click.connect(
        [this](Tool& t) { trapped("smtKeywords_Click", [&] { keywords_->smtKeywords_Click(t); }); });
    c_.smtTimes.Click.connect(
        [this, &a](Tool& t) { trapped("smtTimes_Click", [&] { a.smtTimes_Click(t); }); });
    c_.smtTimes.Change.connect(
        [this, &a](Tool&, const std::string&) { trapped("smtTimes_Change", [&] { a.smtTimes_Change(); }); });
    // The stopwatch's clock is the program's to write.
    c_.smtTimes.BeforeEdit.connect([](Tool& t, bool& cancel) { cancel = cancel || t.key() == "TIMER"; });
    c_.smtTimes.AfterEdit.connect(
        [this, &a](Tool& t) { trapped("smtTimes_AfterEdit", [&] { a.smtTimes_AfterEdit(t); }); });
}

// Nothing while the program fills the tools.
void frmExistingTask::smtABOUT_Change(Tool& tool, const std::string& property) {
    if (g().SettingUp || property != "Value") return;
    if (validation_->levelChanged(tool)) return;
    validation_->statusChanged(tool) || keywords_->projectChanged(tool);
}

void frmExistingTask::Form_Load() {
    trapped("Form_Load", [&] {
        fields_->VisibleTab = 0;
        SetVisibleTab(0);
    });
}

void frmExistingTask::SetSize() {
    trapped("SetSize", [&] { WindowGeometry::forExistingTask(*this).restore(); });
}

void frmExistingTask::SetupDetails() {
    trapped("SetupDetails", [&] {
        if (!loader_->fillLists()) return;
        const auto& s = g();
        if (s.CurrentTaskGUID.size() == kGuidLength && (s.TaskMode == 1 || s.TaskMode == 5)) {
            loader_->GetETASK();
            g().SettingUp = false;
        }
        Tool& update = c_.smtActions.tool("UPDATE");
        if (s.TaskMode == 1) {
            update.setCaption(tr("&Update"));
            update.setEnabled(false);
        } else if (s.TaskMode == 5) {
            update.setCaption(tr("Save to &Task Catalog"));
            update.setEnabled(true);
        }
        for (DateBox* d : {&c_.ctDeadline, &c_.ctTheDateDone}) d->setDayLetters(s.DateFormats[19]);
        placeLayout();
    });
}

void frmExistingTask::GetETASK() {
    trapped("GetETASK", [&] { loader_->GetETASK(); });
}

void frmExistingTask::PackATask() {
    trapped("PackATask", [&] { fields_->PackATask(); });
}

bool frmExistingTask::ValidateTask() {
    return trapped("ValidateTask", [&] { return validation_->ValidateTask(); });
}

int32_t frmExistingTask::PossTallyPoints() {
    return trapped("PossTallyPoints", [&] { return validation_->PossTallyPoints(); });
}

bool frmExistingTask::UpdateTask() {
    return drafts_->after(trapped("UpdateTask", [&] { return updater_->UpdateTask(); }));
}

bool frmExistingTask::SaveToTaskCat() {
    return drafts_->after(trapped("SaveToTaskCat", [&] { return catalog_->SaveToTaskCat(); }));
}

void frmExistingTask::setCKEditMode(int16_t mode) {
    ckLink_->setCKEditMode(mode);
}

std::string frmExistingTask::TrimtoLen(const std::string& text, std::size_t limit) {
    return qv::TrimtoLen(text, limit);
}

void frmExistingTask::initSked() {
    trapped("initSked", [&] { sked_->initSked(); });
}

// Only at load: later adds, deletes and edits leave "SCHEDULED" as it is.
void frmExistingTask::CountUpSked() {
    trapped("CountUpSked", [&] { sked_->CountUpSked(); });
}

// The window's place, then the stored layout and the pane limits.
void frmExistingTask::placeLayout() {
    const auto& w = g().ETaskWindow;
    if (w[4] == vbMinimized)
        setWindowState(vbMaximized);
    else if (w[4] == vbNormal || w[4] == vbMaximized)
        move(w[1], w[0], w[2], w[3]);
    layout_->load();
}

void frmExistingTask::resetLayout() {
    layout_->resetLayout();
}

void frmExistingTask::SetVisibleTab(int16_t tab) {
    layout_->SetVisibleTab(tab);
}

void frmExistingTask::setPrinter(std::shared_ptr<TaskPrinter> printer) {
    if (printer) printer_ = std::move(printer);
}

void frmExistingTask::Form_KeyDown(int32_t keyCode, int32_t) {
    bool swallowed = false;
    trapped("Form_KeyDown", [&] { actions_->Form_KeyDown(keyCode, swallowed); });
}

void frmExistingTask::Form_QueryUnload(bool& cancel, int32_t unloadMode) {
    trapped("Form_QueryUnload", [&] { actions_->Form_QueryUnload(cancel, unloadMode); });
}

void frmExistingTask::Form_Resize() {
    trapped("Form_Resize", [&] {
        WindowGeometry::forExistingTask(*this).onResize();
        c_.Timer2.setEnabled(true);
    });
}

}  // namespace qv
