#include "dialogs/add/frmAddProject.h"

#include <cmath>

#include "session/globals/SessionGlobals.h"
#include "store/ErrorPath.h"
#include "store/SaveTransaction.h"
#include "store/StoreQueries.h"
#include "store/clsNewProject.h"
#include "toolkit/Clock.h"
#include "toolkit/Ports.h"
#include "toolkit/Translate.h"
#include "toolkit/Ui.h"
#include "values/types/CCreateGuid.h"
#include "values/settings/DateFormats.h"
#include "values/types/TextCase.h"
#include "values/types/TextChars.h"

namespace qv {

namespace {
constexpr const char* kModule = "frmAddProject";
// Longer names and summaries are refused; 101 characters still pass.
constexpr std::size_t kMaxLength = 101;
// Fixed date serials: 19 April 2001 and 14 January 2004.
constexpr double kTodayThreshold = 37000.0;
constexpr double kFallbackDate = 38000.0;
// Every project is written with this status.
constexpr int32_t kNewProjectStatus = 4;

double today() {
    return std::floor(clock().now());
}
}  // namespace

frmAddProject::frmAddProject()
    : AddDialog(kModule, {"OK", "CANCEL", 800, QV_N("Project \"%1\" created."), QV_N(" - Add Project")}) {
    smtProject.add(ttTextBox, "txName", tr("Project Name:"));
    smtProject.add(ttTextBox, "txSummary", tr("Description:"));
    smtProject.add(ttTextBox, "DEADLINE", tr("Deadline:")).setHostedControl("cboDate");
    smtAction.add(ttButton, "HELP", tr("&Help")).setTip(tr("Get help with Projects"));
    smtAction.add(ttButton, "CANCEL", tr("&Close")).setTip(tr("Close this window"));
    smtAction.add(ttButton, "OK", tr("C&reate")).setTip(tr("Create a New Project"));
    addControl("smtProject", smtProject);
    addControl("cboDate", cboDate);
    addControl("lblCreate", lblCreate);
    addControl("lblOptional", lblOptional);
}

// The field looks empty but holds today's date, which an untouched field
// writes as the deadline.
void frmAddProject::Form_Load() {
    trap(kModule, "Form_Load", [&] {
        assignDateFormats({&cboDate}, kModule);
        cboDate.setDayLetters(MakeMondayLetters());
        cboDate.setValue(today());
    });
}

std::string frmAddProject::text(const char* key) const {
    return smtProject.tool(key).text();
}

bool frmAddProject::validateNew() {
    return trap(kModule, "validateNew", [&] {
        const std::string name = text("txName");
        const std::string summary = text("txSummary");
        const char* problem = nullptr;
        if (name.empty())
            problem = QV_N("Enter a name for this Project.");
        else if (summary.empty())
            problem = QV_N("Missing Project Summary.");
        else if (charCount(name) > kMaxLength)
            problem = QV_N("The new Project name is too long.");
        else if (charCount(summary) > kMaxLength)
            problem = QV_N("The Summary is too long.");
        if (problem) {
            info(tr(problem));
            return false;
        }
        const auto taken = nameIsTaken();
        if (taken.value_or(false)) info(tr("You already have a Project with that name."));
        return taken == false;
    });
}

// Case-blind; only the new name is trimmed, not the stored ones.
std::optional<bool> frmAddProject::nameIsTaken() const {
    clsNewProject source;
    source.SetSQL(queries::projectsForAdding());
    RecordsetPtr rs;
    if (!source.GetData(rs)) return std::nullopt;
    const std::string wanted = TextCase::upper(trimSpaces(text("txName")));
    bool taken = false;
    for (; !taken && !rs->EOF_(); rs->MoveNext())
        taken = TextCase::upper(rs->Fields("prjProject").value().toText()) == wanted;
    rs->Close();
    return taken;
}

bool frmAddProject::createNewProject() {
    return trap(kModule, "createNewProject", [&] {
        const std::string key = CCreateGuid::guid();
        SaveTransaction save;
        clsNewProject source;
        source.SetSQL(queries::projectsForAdding());
        RecordsetPtr rs;
        if (!source.GetData(rs)) return false;
        rs->AddNew();
        rs->Fields("prjProject") = trimSpaces(text("txName"));
        rs->Fields("prjSummary") = trimSpaces(text("txSummary"));
        if (cboDate.value() != 1.0) rs->Fields("prjDeadline") = Date{std::floor(cboDate.value())};
        rs->Fields("prjGUIDID") = key;
        rs->Fields("StatusLong") = kNewProjectStatus;
        rs->Update();
        rs->UpdateBatch(adAffectAllChapters);
        if (rs->State() == adStateOpen) rs->Close();
        save.commit();
        return true;
    });
}

std::string frmAddProject::addedName() const {
    return text("txName");
}

// The tool clears the whole form; Enter clears only the name and leaves
// summary and date for the next project. That difference is kept.
void frmAddProject::afterAdd(AddTrigger how) {
    const std::string name = text("txName");
    smtProject.tool("txName").setText({});
    if (how == AddTrigger::Tool) {
        smtProject.tool("txSummary").setText({});
        resetDate();
    }
    ProjectAdded(name);
}

void frmAddProject::resetDate() {
    cboDate.setValue(cboDate.value() > kTodayThreshold ? today() : kFallbackDate);
}

// A typed summary alone is not worth a question.
bool frmAddProject::mayClose() {
    if (text("txName").empty()) return true;
    return ui().msgBox(tr("Cancel creating this new Project?"), vbYesNo, kProgramTitle) == vbYes;
}

}  // namespace qv
