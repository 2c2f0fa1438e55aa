#pragma once
// The record a task dialog packs itself into before every check and save.
// The values live in the controls; this is only their snapshot.

#include <cstdint>
#include <string>

namespace qv {

// The numeric picks' mark for "nothing chosen" (status, levels, time needed).
inline constexpr int32_t kNothingChosen = -86;
// The date value that stands for "no date" in deadline and date-done fields.
inline constexpr double kNoDate = 1.0;

struct TaskRecord {
    std::string Desc;
    std::string TaskGUID;
    std::string Notes;
    int32_t TimeNeeded = kNothingChosen;
    int32_t TimeSpent = 0;
    int32_t TimeScheduled = 0;
    int32_t Status = kNothingChosen;
    int32_t Imp = kNothingChosen;
    int32_t Diff = kNothingChosen;
    bool IsCurrent = false;
    bool HasChecklist = false;
    std::string ChecklistName;
    std::string ChecklistDescription;
    std::string ChecklistKey;
    std::string ChecklistState;
    bool HasNotes = false;
    bool HasKeywords = false;
    bool HasSchedule = false;
    double Deadline = kNoDate;
    double CreatedDate = 0.0;
    double LastMod = 0.0;
    std::string Project;
    std::string ProjectKey;
    int32_t CustSortQV = 0;
    int32_t CustCur = 0;
    int32_t CustProj = 0;
    std::string KeywordList;
    int32_t PossPoints = 0;
    double DateDone = kNoDate;
};

}  // namespace qv
