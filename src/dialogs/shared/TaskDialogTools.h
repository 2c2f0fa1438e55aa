#pragma once
// The tools of smtActions that every task dialog has and runs alike: Help
// (on the dialog's own topic), Print, Print Preview and Page Setup.

#include <cstdint>
#include <string>

namespace qv {

class TaskPrinter;

class TaskDialogTools {
public:
    TaskDialogTools(TaskPrinter& printer, int32_t helpTopic) : printer_(printer), helpTopic_(helpTopic) {}

    // Runs the tool of that key; false when it is none of these.
    bool run(const std::string& key);

    void help();
    // The print flow asks its own question first.
    void print(bool preview);
    // Page Setup works with SettingUp raised; it comes down on every path.
    void pageSetup();

private:
    TaskPrinter& printer_;
    int32_t helpTopic_;
};

}  // namespace qv
