#pragma once
// The time spent typed into smtTimes' "TIMESPENT": a text that is no time
// period is refused with a message and goes back to "0:00"; a time is
// copied to the About sheet's "SPENT" with SettingUp raised, so that copy
// stirs no handler.

namespace qv {

class Sheet;
class Tool;

class TimeSpentEdit {
public:
    // True when the edit of this tool was a time now shown in "SPENT"; false
    // for another tool, while setting up, or when refused.
    static bool take(Tool& edited, Sheet& about);
};

}  // namespace qv
