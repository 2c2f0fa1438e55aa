#pragma once
// The one set of session globals of a loaded component. Written and read
// without locks: everything runs on the host's user-interface thread.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "Export.h"

namespace qv {

class clsTask2;

// The fixed window title: heads every caption and titled message box.
inline constexpr const char* kProgramTitle = "Quorvel - Version 1.14";
// The project name given to the reporter.
inline constexpr const char* kProjectName = "QuorvelTask2";

struct QV_EXPORT SessionGlobals {
    // Session entry (SetupTask).
    int32_t TaskMode = 0;
    std::string CurrentTaskGUID;
    std::string CurrentTAGUID;
    std::string TaskCatGUID;
    std::array<std::string, 6> UStuff;
    std::string TaskPrintDialog;
    int32_t DialogNum = 0;
    std::string TaskPrintSetting;
    std::string MOP;
    bool SettingUp = false;
    bool EditingExisting = false;
    bool ScheduleTouched = false;  // the grid's data filter marks it for the host; nothing here reads it
    clsTask2* TheTaskObject = nullptr;

    // Settings (LoadSettings).
    float AppVersion = 0.0f;
    bool SpellCheckOn = true;
    bool OutlookIntegrationOn = false;
    std::string OutlookProfile = "NONE";
    std::vector<std::string> StatusList;
    std::array<std::string, 5> ImportanceList;
    std::array<std::string, 5> DifficultyList;
    std::vector<std::string> TimeNeededLabels;
    std::vector<int32_t> TimeNeededMinutes;
    std::array<int32_t, 6> TASWindow{};
    std::array<int32_t, 6> TaskWindow{};
    std::array<int32_t, 6> ETaskWindow{};
    std::array<int32_t, 15> PointsTable{};

    // Date formats (LoadDateFormatSettings): 40 texts.
    std::array<std::string, 40> DateFormats;

    // Project pickers: parallel arrays.
    std::vector<std::string> ProjectNames;
    std::vector<std::string> ProjectKeys;

    // Store connection (ADOTest).
    std::string ConnString;
    std::string ConnStringShaped;  // formed for hierarchical queries the store has none of yet
    std::string DBLocation;

    // Stopwatch.
    int32_t StopwatchStart = 0;
    int32_t StopwatchStop = 0;

    // The program's folder, as the host gives it ("/" is the separator).
    std::string AppPath;
};

// The globals of this process' component.
QV_EXPORT SessionGlobals& g();

// Puts every global back to its initial value (a fresh component load).
QV_EXPORT void resetGlobals();

}  // namespace qv
