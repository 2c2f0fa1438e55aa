#include "dialogs/shared/SaveConflict.h"

#include <algorithm>
#include <utility>

#include "dialogs/shared/DialogMessages.h"
#include "store/FieldCodec.h"
#include "store/WriteConflict.h"

namespace qv {

namespace {

const std::pair<const char*, const char*> kCaptions[] = {
    {"tskDesc", "Description"},
    {"taTaskDesc", "Description"},
    {"tskNotes", "Notes"},
    {"tskProject", "Project"},
    {"tskProjectKey", "Project"},
    {"taProject", "Project"},
    {"taProjectGUIDID", "Project"},
    {"tskStatus", "Status"},
    {"tskImp", "Importance"},
    {"taImp", "Importance"},
    {"tskDifficulty", "Difficulty"},
    {"taDifficulty", "Difficulty"},
    {"tskTimeNeeded", "Time Needed"},
    {"tskTimeSpent", "Time Spent"},
    {"taTimeWorked", "Time Spent"},
    {"tskDeadline", "Deadline"},
    {"tskDoneDate", "Date Done"},
    {"tskCurrent", "Current List"},
    {"tskHasChecklist", "Checklist"},
    {"tskTCheckListGUID", "Checklist"},
    {"taStartTime", "Start"},
    {"taEndTime", "End"},
    {"taWasWorked", "Done"},
};

}  // namespace

std::string SaveConflict::caption(const std::string& field) {
    for (const auto& [name, shown] : kCaptions)
        if (FieldCodec::equalsNoCase(name, field)) return shown;
    return field;
}

std::string SaveConflict::question(const std::vector<std::string>& fields) {
    std::vector<std::string> shown;
    for (const auto& f : fields) {
        std::string c = caption(f);
        if (std::find(shown.begin(), shown.end(), c) == shown.end()) shown.push_back(std::move(c));
    }
    std::string list;
    for (size_t i = 0; i < shown.size(); ++i) list += (i ? ", " : "") + shown[i];
    return "Another user changed " + list + " since you opened this task.\r\n\r\nOverwrite " +
           (shown.size() == 1 ? "it" : "them") +
           " with your changes? (No saves nothing and keeps this window open.)";
}

// The transaction of a try is undone before the question is shown, so no
// lock is held while the user thinks.
bool SaveConflict::settle(const std::function<bool()>& save, const std::function<void()>& overwrite,
                          bool* declined) {
    if (declined) *declined = false;
    for (;;) {
        try {
            return save();
        } catch (const WriteConflict& conflict) {
            if (!DialogMessages::askYesNo(question(conflict.fields()))) {
                if (declined) *declined = true;
                return false;
            }
            overwrite();
        }
    }
}

}  // namespace qv
