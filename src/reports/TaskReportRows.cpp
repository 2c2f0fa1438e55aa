#include "reports/TaskReportRows.h"

#include <string>
#include <utility>
#include <vector>

#include "reports/EventPause.h"
#include "toolkit/DateBox.h"
#include "toolkit/Grid.h"
#include "toolkit/Sheet.h"
#include "toolkit/TextEditor.h"
#include "toolkit/Translate.h"
#include "values/types/Convert.h"
#include "values/settings/TimeValues.h"

namespace qv {

namespace {

const char* const kNoDeadline = QV_N("No Deadline");

using Pairs = std::vector<std::pair<std::string, std::string>>;

ReportRows table(const Pairs& pairs) {
    ReportRows rows(2, static_cast<int32_t>(pairs.size()));
    for (int32_t r = 0; r < rows.rows(); ++r) {
        rows.at(0, r) = pairs[static_cast<std::size_t>(r)].first;
        rows.at(1, r) = pairs[static_cast<std::size_t>(r)].second;
    }
    return rows;
}

void addAt(Pairs& pairs, const Sheet& sheet, int32_t position) {
    const Tool& t = sheet.at(position);
    pairs.emplace_back(t.caption(), t.text());
}

std::string points(const Sheet& smtReady) {
    return smtReady.tool("POINTS").text();
}

// Minutes as the program writes a duration; a text that is no number stays.
std::string timeWorked(const std::string& cell) {
    if (auto minutes = tryToLong(cell)) return SetTimeFormat(*minutes);
    return cell;
}

}  // namespace

ReportRows TaskReportRows::existingTask(const TextEditor& spellTask, const Sheet& smtABOUT,
                                        const DateBox& ctDeadline, const Sheet& smtReady) {
    const bool dated = ctDeadline.hasDate();
    Pairs pairs{{tr("Task Description:"), spellTask.text()}};
    addAt(pairs, smtABOUT, 1);
    addAt(pairs, smtABOUT, 2);
    // The day number itself, in digits, not a formatted date.
    pairs.emplace_back(tr("Deadline Date:"),
                       dated ? std::to_string(static_cast<int64_t>(ctDeadline.value())) : tr(kNoDeadline));
    pairs.emplace_back(tr("Deadline Time:"), dated ? smtABOUT.at(6).text() : tr(kNoDeadline));
    // The rows from "Project:" to "Time Spent:", taken by key: the sheet has
    // no tool between the deadline's time and the project.
    for (const char* key : {"PROJECT", "IMP", "DIFF", "NEEDED", "SCHEDULED", "SPENT"}) {
        const Tool& t = smtABOUT.tool(key);
        pairs.emplace_back(t.caption(), t.text());
    }
    pairs.emplace_back(tr("Possible Points:"), points(smtReady));
    return table(pairs);
}

ReportRows TaskReportRows::appointment(const TextEditor& spellTask, const Sheet& smtABOUT,
                                       const Sheet& smtReady) {
    Pairs pairs{{tr("Task Description:"), spellTask.text()}};
    addAt(pairs, smtABOUT, 1);
    addAt(pairs, smtABOUT, 2);
    const std::string deadline = smtABOUT.tool("DEADLINE").text();
    pairs.emplace_back(tr("Deadline:"), deadline.empty() ? tr(kNoDeadline) : deadline);
    for (int32_t position = 8; position <= 10; ++position) addAt(pairs, smtABOUT, position);
    pairs.emplace_back(tr("Possible Points:"), points(smtReady));
    return table(pairs);
}

std::optional<ReportRows> TaskReportRows::schedule(const Grid& gridSked) {
    if (gridSked.rowCount() == 0) return std::nullopt;
    const char* const fields[] = {"taStartTime", "taEndTime", "CalcColumn", "taWasWorked", "taTimeWorked"};
    int32_t columns[5];
    for (int i = 0; i < 5; ++i) columns[i] = gridSked.columnOf(fields[i]);
    ReportRows rows(5, gridSked.rowCount());
    EventPause pause;
    for (int32_t r = 0; r < gridSked.rowCount(); ++r) {
        for (int c = 0; c < 5; ++c) {
            const std::string cell = columns[c] < 0 ? std::string() : gridSked.cell(r, columns[c]);
            rows.at(c, r) = c == 4 ? timeWorked(cell) : cell;
        }
        pause.tick();
    }
    return rows;
}

}  // namespace qv
