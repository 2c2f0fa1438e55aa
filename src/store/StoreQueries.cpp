#include "store/StoreQueries.h"

namespace qv::queries {

namespace {

Query byKey(const char* text, const std::string& key) {
    return Query(text, {Value(key)});
}

}  // namespace

Query taskByKey(const std::string& key) {
    return byKey("SELECT * from TASKS WHERE tskGUIDID=?", key);
}

Query newTaskRow() {
    return Query("SELECT * from TASKS WHERE tskImp= 6");
}

Query allTaskKeys() {
    return Query("SELECT tskGUIDID from TASKS");
}

Query currentTaskKeys() {
    return Query("SELECT tskGUIDID from TASKS WHERE tskCURRENT=TRUE");
}

Query taskKeysOfProject(const std::string& projectKey) {
    return byKey("SELECT tskGUIDID from TASKS WHERE tskProjectKey = ?", projectKey);
}

Query catalogItemByKey(const std::string& key) {
    return byKey("SELECT * from TASKSCAT WHERE tskGUIDID=?", key);
}

Query newCatalogRow() {
    return Query("SELECT * from TASKSCAT WHERE tskImp= 6");
}

Query catalogTimeHistory(const std::string& key) {
    return byKey(
        "SELECT tskGUIDID, tskTimeN0, tskTimeN1, tskTimeN2, tskTimeN3, tskTimeN4 from TASKSCAT WHERE "
        "tskGUIDID = ?",
        key);
}

Query appointmentByKey(const std::string& key) {
    return byKey("SELECT * from TASKAPPTS WHERE taGUIDID=?", key);
}

Query appointmentsOfTask(const std::string& taskKey) {
    return byKey("SELECT * from TASKAPPTS WHERE taTaskGUIDID=?", taskKey);
}

Query scheduleOfTask(const std::string& taskKey) {
    return byKey(
        "SELECT TASKAPPTS.taStartTime, TASKAPPTS.taEndTime, TASKAPPTS.taWasWorked, TASKAPPTS.taTimeWorked, "
        "TASKAPPTS.taTaskGUIDID, TASKAPPTS.taGUIDID, "
        "TASKAPPTS.taTaskDesc, TASKAPPTS.taProjectGUIDID, TASKAPPTS.taProject, TASKAPPTS.taImp, "
        "TASKAPPTS.taDifficulty"
        " From TASKAPPTS"
        " Where (((TASKAPPTS.taTaskGUIDID) = ?))"
        " ORDER BY TASKAPPTS.taStartTime DESC;",
        taskKey);
}

Query scheduledMinutesOfTask(const std::string& taskKey) {
    return byKey("SELECT SUM(taDuration) as QVTOTAL from TASKAPPTS WHERE taTaskGUIDID =?", taskKey);
}

Query keywordsBySubject() {
    return Query("SELECT * from KEYWORDS ORDER BY keySubject, keyKeyword");
}

Query keywordsByName() {
    return Query("SELECT * from Keywords ORDER BY keyKeyword");
}

Query keywordsForAdding() {
    return Query("SELECT * From Keywords ORDER BY Keywords.keySubject");
}

Query keywordSubjects() {
    return Query(
        "SELECT Keywords.keySubject From Keywords GROUP BY Keywords.keySubject ORDER BY Keywords.keySubject");
}

Query keywordLinksOfTask(const std::string& taskKey) {
    return byKey("SELECT * from TaskKeywords WHERE ktTASKGUID= ?", taskKey);
}

Query keywordsLinkedToTask(const std::string& taskKey) {
    return byKey(
        "SELECT keyGUIDID, keyKeyword from KEYWORDS WHERE keyGUIDID IN (SELECT ktKEYGUID from TaskKeywords "
        "WHERE ktTASKGUID= ?)",
        taskKey);
}

Query projectList() {
    return Query("SELECT prjGUIDID, prjProject from PROJECTS ORDER BY prjProject");
}

Query projectsForAdding() {
    return Query("SELECT * from PROJECTS ORDER BY prjProject");
}

Query checklistByKey(const std::string& key) {
    return byKey("SELECT ckName, ckDesc, ckContent from CHECKLISTS WHERE ckGUIDID=?", key);
}

Query checklistOfCatalogItem(const std::string& key) {
    return byKey("SELECT ckGUIDID, ckName, ckContent from CHECKLISTS WHERE ckGUIDID =?", key);
}

Query checklistRow(const std::string& key) {
    return byKey("SELECT * from CHECKLISTS WHERE ckGUIDID=?", key);
}

Query checklistPickerList() {
    return Query("SELECT ckName, ckDesc, ckGUIDID from CHECKLISTS order by ckName");
}

Query settingsSection(const std::string& section) {
    return byKey(
        "SELECT * from Settings WHERE SetUser='1' and SetSettingSection = ? ORDER BY setSettingDisplayOrd",
        section);
}

Query settingsSections(const std::vector<std::string>& sections) {
    std::string marks;
    std::vector<Value> values;
    for (const std::string& section : sections) {
        marks += marks.empty() ? "?" : ", ?";
        values.emplace_back(section);
    }
    return {"SELECT * from Settings WHERE SetUser='1' and SetSettingSection IN (" + marks +
                ") ORDER BY SetSettingSection, setSettingDisplayOrd",
            std::move(values)};
}

}  // namespace qv::queries
