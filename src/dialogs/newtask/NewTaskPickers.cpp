#include "dialogs/newtask/NewTaskPickers.h"

#include <cmath>

#include "dialogs/newtask/NewTaskFields.h"
#include "dialogs/newtask/frmTask3.h"
#include "dialogs/shared/KeywordSheet.h"
#include "dialogs/shared/ProjectSheet.h"
#include "dialogs/shared/SettingUp.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/Clock.h"
#include "toolkit/Ports.h"

namespace qv {

namespace {
double today() { return std::floor(clock().now()); }
}  // namespace

NewTaskPickers::NewTaskPickers(frmTask3& f) : f_(f), add_(f) {}

NewTaskPickers::~NewTaskPickers() = default;

void NewTaskPickers::smtLevels_Click(Tool&) {
    if (!g().SettingUp) f_.ValidateTask();
}

// Clicks into the custom time do not re-check: it counts from the next edit.
void NewTaskPickers::smtTimeNeeded_Click(Tool& tool) {
    if (!g().SettingUp && tool.key() != "CUSTOMTIME") f_.ValidateTask();
}

void NewTaskPickers::spellTask_Change() {
    if (!g().SettingUp) f_.ValidateTask();
}

// An option re-checks whatever the flag says; the check itself then stays quiet.
void NewTaskPickers::smtProj_Click(Tool& tool) {
    if (tool.type() == ttOption) f_.ValidateTask();
    else if (!g().SettingUp && tool.key() == ProjectSheet::kNewProjectKey) openAddProject();
}

void NewTaskPickers::smtKeywords_Click(Tool& tool) {
    if (g().SettingUp) return;
    if (tool.type() == ttCheck) {
        f_.fields().KeywordCount = KeywordSheet::countTicked(f_.controls().smtKeywords);
        f_.ValidateTask();
    } else if (tool.key() == KeywordSheet::kNewKeywordKey) {
        openAddKeyword();
    }
}

void NewTaskPickers::smtOther_Click(Tool& tool) {
    if (!g().SettingUp && tool.key() == "CLEARDEAD") clearDeadline();
}

// Typing a time without a date makes it today's deadline.
void NewTaskPickers::smtOther_Change(Tool& tool, const std::string& property) {
    if (tool.key() != "DEADTIME" || property != "Value" || f_.fields().writingDeadTime()) return;
    if (f_.controls().ctDeadline.value() < 100) f_.controls().ctDeadline.setValue(today());
}

void NewTaskPickers::ctDeadline_Change() {
    if (f_.controls().ctDeadline.value() == 1.0) f_.controls().ctDeadline.setValue(today());
}

// The flags do not move: the deadline is simply gone from the next pack.
void NewTaskPickers::clearDeadline() {
    {
        SettingUp raised;
        f_.controls().ctDeadline.setValue(1.0);
        f_.fields().writeDeadTime("");
    }
    f_.PackATask();
}

void NewTaskPickers::fNewProject_ProjectAdded(const std::string& name) {
    ProjectSheet::refill(f_.controls().smtProj, name);
    f_.ProjectAdded(name);
}

// The user's ticks go with the rebuild.
void NewTaskPickers::fNewKeyword_KeywordAdded() {
    KeywordSheet::build(f_.controls().smtKeywords);
    f_.KeywordAdded();
}

void NewTaskPickers::openAddProject() {
    add_.openAddProject([this](const std::string& name) { fNewProject_ProjectAdded(name); },
                        [this] { f_.GotErrExitNow(); });
}

void NewTaskPickers::openAddKeyword() {
    add_.openAddKeyword([this] { fNewKeyword_KeywordAdded(); }, [this] { f_.GotErrExitNow(); });
}

}  // namespace qv
