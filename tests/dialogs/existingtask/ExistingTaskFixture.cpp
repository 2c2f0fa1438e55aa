#include "dialogs/existingtask/ExistingTaskFixture.h"

namespace qv {

void ExistingTaskFixture::addTask(const std::string& extraColumns, const std::string& extraValues) const {
    exec("INSERT INTO TASKS (tskGUIDID, tskDesc, tskNotes, tskProject, tskProjectKey, tskStatus, tskImp, "
         "tskDifficulty, tskTimeNeeded, tskTimeSpent, tskTimeScheduled, tskCurrent, tskPossPoints, tskHasSchedule, "
         "tskCreatedDate" + extraColumns + ") VALUES ('" + std::string(kTask) +
         "', 'Paint the fence', 'Two coats', 'Alpha', '" + kAlpha +
         "', 1, 2, 3, 90, 45, 30, 1, 12, 0, '2026-01-05 08:00:00.000'" + extraValues + ")");
}

void ExistingTaskFixture::linkKeyword(const std::string& keyword) const {
    exec("INSERT INTO TaskKeywords (ktTASKGUID, ktTask, ktKEYGUID, ktKeyword) VALUES ('" + std::string(kTask) +
         "', 'Paint the fence', '" + keyword + "', 'x')");
}

void ExistingTaskFixture::choose(const std::string& listKey, const std::string& caption) {
    then([this, listKey, caption] {
        Tool& list = tool("smtABOUT", listKey);
        for (const auto& item : list.items())
            if (item->caption() == caption) return sheet("smtABOUT").click(*item);
        ADD_FAILURE() << listKey << " has no entry " << caption;
    });
}

void ExistingTaskFixture::etype(const std::string& sheetName, const std::string& key, const std::string& text) {
    then([this, sheetName, key, text] { sheet(sheetName).userChoose(tool(sheetName, key), text); });
}

}  // namespace qv
