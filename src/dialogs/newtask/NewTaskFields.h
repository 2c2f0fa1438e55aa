#pragma once
// The dialog-level properties of the New Task dialog, each a getter (and
// where it has one a setter) over the controls, and the packing of the
// controls into the TaskRecord.

#include <cstdint>
#include <string>

#include "dialogs/checklists/ChecklistLink.h"
#include "dialogs/shared/CustomSortNumbers.h"
#include "dialogs/shared/TaskRecord.h"

namespace qv {

struct NewTaskControls;

class NewTaskFields {
public:
    explicit NewTaskFields(NewTaskControls& c) : c_(c) {}

    [[nodiscard]] const TaskRecord& record() const { return rec_; }
    [[nodiscard]] TaskRecord& record() { return rec_; }
    void PackATask();

    [[nodiscard]] int32_t utilImp();
    void setUtilImp(int32_t value);
    [[nodiscard]] int32_t utilDiff();
    void setUtilDiff(int32_t value);
    // "NOPROJECT" unless an option is checked.
    [[nodiscard]] std::string utilProjectName() const;
    [[nodiscard]] std::string utilProjectKey() const;
    void setUtilProjectKey(const std::string& key);
    [[nodiscard]] int32_t utilStatus();
    void setUtilStatus(int32_t value);
    // May tell the user that the custom time is not a time.
    [[nodiscard]] int32_t utilTimeNeeded();
    void setUtilTimeNeeded(int32_t minutes);
    [[nodiscard]] double utilDeadLine();
    void setUtilDeadLine(double value);
    // The deadline's time of day; a bad time is told and wiped.
    [[nodiscard]] float utilGetDeadTime();
    [[nodiscard]] double utiltheDateDone() const;
    void setUtiltheDateDone(double value);
    [[nodiscard]] std::string utilKeywordList();
    void setUtilNewTaskGUID(const std::string& guid);
    // Filled once per dialog, from the row counts, and never reset.
    [[nodiscard]] int32_t utilCustSortQV();
    [[nodiscard]] int32_t utilCustCur();
    [[nodiscard]] int32_t utilCustProj();

    // Writes DEADTIME without dating the deadline: only typing dates it.
    void writeDeadTime(const std::string& text);
    [[nodiscard]] bool writingDeadTime() const { return writingDeadTime_; }

    // Plain members; the checklist link shares its part with ChecklistLink.
    ChecklistState checklist;
    bool utilHasSchedule = false;
    int32_t utilPossPoints = 0;
    int32_t KeywordCount = 0;

private:
    NewTaskControls& c_;
    TaskRecord rec_;
    int32_t imp_ = kNothingChosen;
    int32_t diff_ = kNothingChosen;
    int32_t status_ = kNothingChosen;
    CustomSortNumbers sort_{CustomSortNumbers::Counter::StatusList};
    std::string keywordList_;
    bool writingDeadTime_ = false;
};

}  // namespace qv
