#pragma once
// A store of tasks with everything a calendar file must carry (projects,
// keywords, appointments, checklist links, odd characters), a second
// empty store to import into, and a table dump to compare the two.

#include <string>
#include <vector>

#include "support/TestEnv.h"

namespace qv {

class InteropFixture : public TestEnv {
public:
    // Every row of the table as "column=value|...", sorted.
    [[nodiscard]] static std::vector<std::string> dump(const std::string& table);

protected:
    void TearDown() override;

    // Fills the session's store with tasks tasks (a project per 10, a
    // keyword per 6, two appointments per other task).
    void fillStore(int tasks);
    // Points the session at a fresh, empty store in a folder of its own.
    void useSecondStore();
    // Points the session back at the fixture's own store.
    void useFirstStore();
    [[nodiscard]] std::string tempPath(const std::string& name) const { return folder() + "/" + name; }
    // Runs python3 CODE in the fixture's folder; its standard output.
    [[nodiscard]] std::string run(const std::string& command) const;

private:
    static void point(const std::string& folder);
    std::string second_;
};

// The names of the five tables a calendar file carries.
inline const std::vector<std::string> kTravellingTables = {"TASKS", "TASKAPPTS", "TaskKeywords", "PROJECTS",
                                                           "KEYWORDS"};

}  // namespace qv
