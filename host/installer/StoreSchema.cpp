#include "installer/StoreSchema.h"

#include "store/Connection.h"

namespace qv {

namespace {

// Declared types tell the field layer what a column holds: INTEGER is a
// 32-bit whole number, SMALLINT a 16-bit one, BOOLEAN 0/1, DATETIME ISO text.
// TASKS and TASKSCAT share these columns; only the checklist key differs.
// Names that lists sort by compare without regard to case, as users expect.
std::string taskColumns(const char* checklistColumn) {
    return std::string(
               "tskGUIDID TEXT NOT NULL UNIQUE, tskDesc TEXT, tskProject TEXT, "
               "tskProjectKey TEXT, tskStatus SMALLINT, tskImp SMALLINT, "
               "tskDifficulty SMALLINT, tskTimeNeeded INTEGER, tskTimeScheduled INTEGER, "
               "tskTimeSpent INTEGER, tskCurrent BOOLEAN, tskHasSchedule BOOLEAN, "
               "tskNotes TEXT, tskHasNotes BOOLEAN, tskCreatedDate DATETIME, "
               "tskLastMod DATETIME, tskDeadline DATETIME, tskDoneDate DATETIME, "
               "tskPossPoints INTEGER, tskCustSortQV INTEGER, tskCustSortCUR INTEGER, "
               "tskCustSortProj INTEGER, tskHasChecklist BOOLEAN, ") +
           checklistColumn + " TEXT, tskTaskCatGUID TEXT, tskWasImported BOOLEAN, tskOUTEntityID TEXT";
}

std::vector<std::string> makeSchema() {
    return {
        "CREATE TABLE TASKS (" + taskColumns("tskTCheckListGUID") + ")",
        "CREATE TABLE TASKSCAT (" + taskColumns("tskCheckListGUID") +
            ", tskTimeN0 INTEGER, tskTimeN1 INTEGER, tskTimeN2 INTEGER, tskTimeN3 INTEGER, "
            "tskTimeN4 INTEGER)",
        // An appointment key may stand twice: no unique key here.
        "CREATE TABLE TASKAPPTS (taGUIDID TEXT, taTaskGUIDID TEXT, taProject TEXT, "
        "taProjectGUIDID TEXT, taStartTime DATETIME, taEndTime DATETIME, taTaskDesc TEXT, "
        "taImp SMALLINT, taDifficulty SMALLINT, taWasWorked BOOLEAN, taTimeWorked INTEGER, "
        "taDuration INTEGER)",
        "CREATE TABLE PROJECTS (prjGUIDID TEXT NOT NULL UNIQUE, prjProject TEXT COLLATE NOCASE, "
        "prjSummary TEXT, prjDeadline DATETIME, StatusLong INTEGER)",
        "CREATE TABLE KEYWORDS (keyGUIDID TEXT NOT NULL UNIQUE, keySubject TEXT COLLATE NOCASE, "
        "keyKeyword TEXT COLLATE NOCASE)",
        "CREATE TABLE TaskKeywords (ktTASKGUID TEXT, ktTask TEXT, ktKEYGUID TEXT, ktKeyword TEXT)",
        "CREATE TABLE CHECKLISTS (ckGUIDID TEXT NOT NULL UNIQUE, ckName TEXT COLLATE NOCASE, ckDesc TEXT, "
        "ckContent TEXT)",
        "CREATE TABLE Settings (SetUser TEXT, SetSettingSection TEXT, SetSettingName TEXT, "
        "SetSettingValue TEXT, SetDefault TEXT, setSettingDisplayOrd INTEGER, "
        "setSettingComment TEXT)",
        // Where the queries filter and sort.
        "CREATE INDEX idxTasksProject ON TASKS (tskProjectKey)",
        "CREATE INDEX idxTasksCurrent ON TASKS (tskCurrent)",
        // New rows are added through a set opened on "tskImp= 6", which
        // must find its nothing without reading every task.
        "CREATE INDEX idxTasksImp ON TASKS (tskImp)",
        "CREATE INDEX idxTasksCatImp ON TASKSCAT (tskImp)",
        Connection::kScheduleIndex,
        "CREATE INDEX idxApptsKey ON TASKAPPTS (taGUIDID)",
        "CREATE INDEX idxTaskKeywordsTask ON TaskKeywords (ktTASKGUID)",
        "CREATE INDEX idxSettingsSection ON Settings (SetUser, SetSettingSection, "
        "setSettingDisplayOrd)",
        "CREATE INDEX idxProjectsName ON PROJECTS (prjProject)",
        "CREATE INDEX idxKeywordsSubject ON KEYWORDS (keySubject, keyKeyword)",
    };
}

}  // namespace

const std::vector<std::string>& storeSchema() {
    static const std::vector<std::string> schema = makeSchema();
    return schema;
}

}  // namespace qv
