#pragma once
// The Existing Task dialog's state besides its controls: the packed
// TaskRecord, the util properties that read and write one tool each
// through a value slot, and the dialog's flags and counts.

#include <cstdint>
#include <memory>
#include <string>

#include "dialogs/checklists/ChecklistLink.h"
#include "dialogs/shared/CustomSortNumbers.h"
#include "dialogs/shared/TaskRecord.h"

namespace qv {

struct ExistingTaskControls;
class clsNewTask;
class Recordset;

class ExistingTaskFields {
public:
    explicit ExistingTaskFields(ExistingTaskControls& c);
    ~ExistingTaskFields();

    [[nodiscard]] const TaskRecord& record() const { return rec_; }
    [[nodiscard]] TaskRecord& record() { return rec_; }
    void PackATask();

    [[nodiscard]] int32_t utilStatus();
    void setUtilStatus(int32_t value);
    [[nodiscard]] int32_t utilImp();
    void setUtilImp(int32_t value);
    [[nodiscard]] int32_t utilDiff();
    void setUtilDiff(int32_t value);
    // The value of "PROJECT": empty while no project was chosen.
    [[nodiscard]] std::string utilProjectName() const;
    void setUtilProjectName(const std::string& name);
    // The key of the entry captioned as the value; "NOPROJECT" if none.
    [[nodiscard]] std::string utilProjectKey() const;
    void setUtilProjectKey(const std::string& key);
    // Only a clock-like text counts; anything else is 0.
    [[nodiscard]] int32_t utilTimeNeeded();
    void setUtilTimeNeeded(int32_t minutes);
    // "TIMESPENT": empty is 0, a clock-like text its minutes, else -86.
    [[nodiscard]] int32_t utilTimeSpent();
    void setUtilTimeSpent(int32_t minutes);
    [[nodiscard]] float utilGetDeadTime() const;
    [[nodiscard]] double utilDeadLine() const;
    void setUtilDeadLine(double value);
    [[nodiscard]] double utiltheDateDone() const;
    void setUtiltheDateDone(double value);
    void setUtilNewTaskGUID(const std::string& guid);
    [[nodiscard]] std::string utilKeywordList();
    void setUtilKeywordList(const std::string& bag);
    [[nodiscard]] CustomSortNumbers& sortNumbers() { return sort_; }

    // Plain slots; the checklist link shares its part with ChecklistLink.
    ChecklistState checklist;
    bool utilHasSchedule = false;
    int32_t utilPossPoints = 0;
    bool IsDirty = false;
    int32_t SkedRowCount = 0;
    int32_t KeywordCount = 0;
    int16_t VisibleTab = 0;
    bool ResettingLayout = false;

    // The task's row, open from loading until the save or the unload, with
    // the data object that opened it.
    std::unique_ptr<clsNewTask> TaskRowSource;
    std::shared_ptr<Recordset> TaskRow;
    // Opens the row of CurrentTaskGUID (of the catalog item in mode 6).
    bool openTaskRow();
    void closeTaskRow();

private:
    void packTimes();
    int32_t readPick(const char* key, int32_t& slot);
    void writePick(const char* key, int32_t& slot, int32_t value);

    ExistingTaskControls& c_;
    TaskRecord rec_;
    int32_t status_ = kNothingChosen;
    int32_t imp_ = kNothingChosen;
    int32_t diff_ = kNothingChosen;
    int32_t timeNeeded_ = 0;
    int32_t timeSpent_ = 0;
    std::string keywordList_;
    CustomSortNumbers sort_{CustomSortNumbers::Counter::NewTask};
};

}  // namespace qv
