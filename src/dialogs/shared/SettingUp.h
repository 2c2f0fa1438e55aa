#pragma once
// The session's SettingUp flag for one scope: while a dialog fills its own
// controls their change handlers stand still, and the flag comes down on
// every way out, a fault's too.

namespace qv {

class SettingUp {
public:
    // Whether the scope raises the flag, or only lowers it at the end (for
    // work that raises it itself, as Page Setup does).
    enum class Raise { Now, ByTheWork };

    explicit SettingUp(Raise raise = Raise::Now);
    ~SettingUp();
    SettingUp(const SettingUp&) = delete;
    SettingUp& operator=(const SettingUp&) = delete;
};

}  // namespace qv
