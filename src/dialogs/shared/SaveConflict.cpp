#include "dialogs/shared/SaveConflict.h"

#include <algorithm>
#include <utility>

#include "dialogs/shared/DialogMessages.h"
#include "store/FieldCodec.h"
#include "store/WriteConflict.h"
#include "toolkit/TextFill.h"
#include "toolkit/Translate.h"

namespace qv {

namespace {

const std::pair<const char*, const char*> kCaptions[] = {
    {"tskDesc", QV_N("Description")},
    {"taTaskDesc", QV_N("Description")},
    {"tskNotes", QV_N("Notes")},
    {"tskProject", QV_N("Project")},
    {"tskProjectKey", QV_N("Project")},
    {"taProject", QV_N("Project")},
    {"taProjectGUIDID", QV_N("Project")},
    {"tskStatus", QV_N("Status")},
    {"tskImp", QV_N("Importance")},
    {"taImp", QV_N("Importance")},
    {"tskDifficulty", QV_N("Difficulty")},
    {"taDifficulty", QV_N("Difficulty")},
    {"tskTimeNeeded", QV_N("Time Needed")},
    {"tskTimeSpent", QV_N("Time Spent")},
    {"taTimeWorked", QV_N("Time Spent")},
    {"tskDeadline", QV_N("Deadline")},
    {"tskDoneDate", QV_N("Date Done")},
    {"tskCurrent", QV_N("Current List")},
    {"tskHasChecklist", QV_N("Checklist")},
    {"tskTCheckListGUID", QV_N("Checklist")},
    {"taStartTime", QV_N("Start")},
    {"taEndTime", QV_N("End")},
    {"taWasWorked", QV_N("Done")},
};

}  // namespace

std::string SaveConflict::caption(const std::string& field) {
    for (const auto& [name, shown] : kCaptions)
        if (FieldCodec::equalsNoCase(name, field)) return tr(shown);
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
    return fill(tr("Another user changed %1 since you opened this task."), {list}) + "\r\n\r\n" +
           trn("Overwrite it with your changes? (No saves nothing and keeps this window open.)",
               "Overwrite them with your changes? (No saves nothing and keeps this window open.)", shown.size());
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
