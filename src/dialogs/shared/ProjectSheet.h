#pragma once
// The project options of a task dialog: one option per project, tagged and
// keyed with its key, then a separator and "New Project". The session's
// ProjectKeys and ProjectNames follow the list.

#include <string>

namespace qv {

class Sheet;
class Tool;

class ProjectSheet {
public:
    static constexpr const char* kNewProjectKey = "kNEWPROJECT";
    static constexpr const char* kArchived = "Archived";

    // The dialog's first fill: no option for "Archived", the MOP project
    // disabled. False when the store could not be read.
    static bool fillForSetup(Sheet& sheet);
    // After a project was added: every project an ordinary option, and the
    // one named newName (compared after ZapAmps) checked. With no rows the
    // sheet stays and only gains the closing tools again.
    static bool refill(Sheet& sheet, const std::string& newName);

    // The Existing Task dialog's drop-down list: every project an entry
    // keyed "PRJ-" and its key, tagged with the key, "Archived" included,
    // then a separator and "New Project". At setup (disableMop) the MOP
    // project's entry is disabled; after an added project none is.
    static bool fillList(Tool& list, bool disableMop);

private:
    static void addClosingTools(Sheet& sheet);
};

}  // namespace qv
