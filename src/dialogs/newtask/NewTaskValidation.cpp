#include "dialogs/newtask/NewTaskValidation.h"

#include "dialogs/newtask/NewTaskFields.h"
#include "dialogs/newtask/frmTask3.h"
#include "dialogs/shared/DialogMessages.h"
#include "dialogs/shared/PointsTally.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/Translate.h"
#include "values/types/TextChars.h"
#include "values/settings/TimeValues.h"

namespace qv {

namespace {
constexpr std::size_t kMaxDescription = 255;
}  // namespace

bool NewTaskValidation::ValidateTask() {
    if (g().SettingUp) return false;
    f_.PackATask();
    PossTallyPoints();
    const TaskRecord& r = f_.fields().record();
    bool ok = checkDeadTime();
    ok = checkDescription() && ok;
    ok = checkFlag("PROJECTFLAG", r.Project != "NOPROJECT", QV_N("Project not set."), QV_N("Project set.")) && ok;
    if (r.Status == kNothingChosen) {
        DialogMessages::inform(tr("Missing Task's Status."));
        ok = false;
    }
    ok = checkFlag("IMPFLAG", r.Imp != kNothingChosen, QV_N("Importance not set."), QV_N("Importance set.")) && ok;
    ok = checkFlag("DIFFFLAG", r.Diff != kNothingChosen, QV_N("Difficulty not set."), QV_N("Difficulty set.")) && ok;
    ok = checkFlag("TIMENEEDEDFLAG", r.TimeNeeded != kNothingChosen, QV_N("Time Needed not set."), QV_N("Time Needed set.")) && ok;
    ok = checkNewChecklist() && ok;
    setAddTools(ok);
    auto& actions = f_.controls().smtActions;
    actions.tool("CLEAR").setEnabled(true);
    actions.tool("DONE").setCaption(tr("C&ancel"));
    return ok;
}

void NewTaskValidation::PossTallyPoints() {
    const TaskRecord& r = f_.fields().record();
    const int32_t points = PointsTally::tally(r);
    f_.controls().smtReady.tool("POINTS").setText(std::to_string(points));
    f_.fields().utilPossPoints = points;
}

bool NewTaskValidation::checkDeadTime() {
    const std::string text = f_.controls().smtOther.tool("DEADTIME").text();
    if (text.empty() || IsTime(text)) return true;
    DialogMessages::inform(tr("Deadline Time needs to be a recognizable time."));
    return false;
}

// Length in characters, untrimmed: a description of blanks is a description.
bool NewTaskValidation::checkDescription() {
    const std::size_t length = charCount(f_.fields().record().Desc);
    if (length == 0) return checkFlag("DESCFLAG", false, QV_N("Missing Task Description."), "");
    return checkFlag("DESCFLAG", length <= kMaxDescription, QV_N("Task Description too long."), QV_N("Task Description entered."));
}

bool NewTaskValidation::checkFlag(const char* key, bool good, const char* badTip, const char* goodTip) {
    Tool& flag = f_.controls().smtReady.tool(key);
    flag.setImage(good ? "GOOD" : "BAD");
    flag.setTip(tr(good ? goodTip : badTip));
    return good;
}

// A slot for a checklist made on the spot: nothing here sets that state yet.
bool NewTaskValidation::checkNewChecklist() {
    const TaskRecord& r = f_.fields().record();
    if (r.ChecklistState != "NEWCHECKLIST") return true;
    bool ok = true;
    if (r.ChecklistName.empty()) {
        DialogMessages::inform(tr("Missing Checklist Name."));
        ok = false;
    }
    if (r.ChecklistDescription.empty()) {
        DialogMessages::inform(tr("Missing Checklist Description."));
        ok = false;
    }
    return ok;
}

void NewTaskValidation::setAddTools(bool enabled) {
    auto& actions = f_.controls().smtActions;
    for (const char* key : {"QV", "QV2", "TC"}) actions.tool(key).setEnabled(enabled);
}

}  // namespace qv
