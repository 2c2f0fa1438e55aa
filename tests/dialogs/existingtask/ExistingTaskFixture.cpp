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

void ExistingTaskFixture::eclick(const std::string& sheetName, const std::string& key) {
    then([this, sheetName, key] { esheet(sheetName).click(etool(sheetName, key)); });
}

void ExistingTaskFixture::choose(const std::string& listKey, const std::string& caption) {
    then([this, listKey, caption] {
        Tool& list = etool("smtABOUT", listKey);
        for (const auto& item : list.items())
            if (item->caption() == caption) return esheet("smtABOUT").click(*item);
        ADD_FAILURE() << listKey << " has no entry " << caption;
    });
}

void ExistingTaskFixture::etype(const std::string& sheetName, const std::string& key, const std::string& text) {
    then([this, sheetName, key, text] { esheet(sheetName).userChoose(etool(sheetName, key), text); });
}

}  // namespace qv
