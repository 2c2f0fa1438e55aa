#include "dialogs/newtask/NewTaskReport.h"

#include "dialogs/newtask/NewTaskFields.h"
#include "dialogs/newtask/frmTask3.h"
#include "reports/PrintSettings.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/Translate.h"
#include "values/settings/TimeValues.h"

namespace qv {

namespace {

const char* const kNotSet = QV_N("Not yet set.");
const char* const kNoDeadline = QV_N("No Deadline");

std::string levelText(const std::array<std::string, 5>& names, int32_t value) {
    if (value < 0 || static_cast<std::size_t>(value) >= names.size()) return tr(kNotSet);
    return names[static_cast<std::size_t>(value)];
}

}  // namespace

ReportRows NewTaskReport::taskRows() {
    auto& c = f_.controls();
    auto& fields = f_.fields();
    const double deadline = c.ctDeadline.value();
    const bool dated = deadline >= 2.0;
    const int32_t needed = fields.utilTimeNeeded();
    const std::string projectKey = fields.utilProjectKey();
    const std::pair<std::string, std::string> rows[] = {
        {tr("Task Description:"), c.spellTask.text()},
        {tr("Status:"), tr("Not yet saved.")},
        {tr("Current:"), PrintSettings::boolText(c.smtOther.tool("ISCURRENT").checked())},
        // The day number itself, in digits, not a formatted date.
        {tr("Deadline Date:"), dated ? std::to_string(static_cast<int64_t>(deadline)) : tr(kNoDeadline)},
        {tr("Deadline Time:"), dated ? c.smtOther.tool("DEADTIME").text() : tr(kNoDeadline)},
        {tr("Project:"), projectKey == "NOPROJECT" ? tr(kNotSet) : fields.utilProjectName()},
        {tr("Importance:"), levelText(g().ImportanceList, fields.utilImp())},
        {tr("Difficulty:"), levelText(g().DifficultyList, fields.utilDiff())},
        {tr("Time Needed:"), needed == kNothingChosen ? tr(kNotSet) : SetTimeFormat(needed)},
        {tr("Possible Points:"), fields.utilPossPoints == kNothingChosen ? tr(kNotSet)
                                                                     : std::to_string(fields.utilPossPoints)},
    };
    ReportRows table(2, static_cast<int32_t>(std::size(rows)));
    for (int32_t r = 0; r < table.rows(); ++r) {
        table.at(0, r) = rows[r].first;
        table.at(1, r) = rows[r].second;
    }
    return table;
}

const TextEditor& NewTaskReport::checklistEditor() const {
    return f_.controls().spellCK;
}

const TextEditor& NewTaskReport::notesEditor() const {
    return f_.controls().SpellNotes;
}

}  // namespace qv
