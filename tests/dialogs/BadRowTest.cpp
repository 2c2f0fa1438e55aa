// One hostile value in one column of a stored row: the dialog opens (with at
// most one message naming the field), or, for a level beyond its list, takes
// the error path naming table, column and key. No library text in either.

#include <functional>
#include <iostream>
#include <map>
#include <string>
#include <vector>

#include "dialogs/appointment/AppointmentFixture.h"
#include "dialogs/existingtask/ExistingTaskFixture.h"
#include "toolkit/Form.h"
#include "toolkit/Ui.h"

namespace qv {

namespace {

// A column, the words a message names it by, and whether beyond-the-list
// numbers take the error path there.
struct Column {
    const char* table;
    const char* name;
    const char* field;
    bool bounded = false;
};

const std::vector<std::string> kHostile = {"NULL",         "-1",      "99",    "2147483648",
                                           "1e308",        "-1e308",  "'abc'", "'not a date'",
                                           "'9999-99-99'", "X'00ff'", "''",    "'1D 1:00'"};

// A number that a level list can't hold, as opposed to a null or a text.
bool beyondList(const std::string& value) {
    return value == "-1" || value == "99" || value == "2147483648";
}

struct Tally {
    int cases = 0;
    int opened = 0;    // opened without a word
    int told = 0;      // opened with the one message naming the field
    int reported = 0;  // the error path, naming table, column, key and value
    void print(const char* what) const {
        std::cout << "[bad rows] " << what << ": " << cases << " cases, " << opened << " open as they are, "
                  << told << " open with a message naming the field, " << reported
                  << " end in a report naming the column\n";
    }
};

bool libraryText(const std::string& text) {
    for (const char* words : {"vector::", "_M_range", "basic_string", "std::", "stoi", "stod", "what()"})
        if (text.find(words) != std::string::npos) return true;
    return false;
}

}  // namespace

// Runs each case on one stored row: set the column, open, note what came.
template <class Fixture>
class BadRowMatrix : public Fixture {
protected:
    // setRow puts the good row back; openRow opens the dialog on it.
    void run(const char* what, const std::vector<Column>& columns, const std::function<void()>& setRow,
             const std::function<void()>& openRow, const std::map<std::string, std::string>& keys) {
        Tally tally;
        for (const Column& column : columns) {
            for (const std::string& value : kHostile) {
                SCOPED_TRACE(std::string(column.table) + "." + column.name + " = " + value);
                setRow();
                this->exec(std::string("UPDATE ") + column.table + " SET " + column.name + " = " + value);
                this->scriptedUi().clearMessages();
                // Whatever the load tells is acknowledged.
                while (this->scriptedUi().pendingAnswers() < 3) this->scriptedUi().queueAnswer(vbOK);
                this->reporter().clear();
                bool shown = false;
                if (this->scriptedUi().pendingActions() == 0)
                    this->then([&shown] {
                        shown = true;
                        for (const auto& form : Form::openForms()) form->hide();
                    });
                openRow();
                ++tally.cases;
                judge(column, value, keys.at(column.table), shown, tally);
            }
        }
        tally.print(what);
    }

private:
    void judge(const Column& column, const std::string& value, const std::string& key, bool shown,
               Tally& tally) {
        const auto& faults = this->reporter().faults();
        const auto& messages = this->scriptedUi().messages();
        for (const auto& m : messages) EXPECT_FALSE(libraryText(m.text)) << m.text;
        for (const auto& f : faults) EXPECT_FALSE(libraryText(f.description)) << f.description;
        if (!faults.empty()) {
            ASSERT_EQ(faults.size(), 1u);
            const std::string& report = faults.front().description;
            EXPECT_TRUE(column.bounded && beyondList(value))
                << "only a level beyond its list fails: " << report;
            for (const std::string& part : {std::string(column.table), std::string(column.name), key})
                EXPECT_NE(report.find(part), std::string::npos) << report;
            ++tally.reported;
            return;
        }
        EXPECT_TRUE(shown) << "neither opened nor reported";
        int naming = 0;
        for (const auto& m : messages) {
            if (m.text.find(" as its ") == std::string::npos) continue;
            ++naming;
            EXPECT_NE(m.text.find(column.field), std::string::npos) << m.text;
            EXPECT_EQ(m.title, "Quorvel - Version 1.14");
        }
        EXPECT_LE(naming, 1);
        ++(naming ? tally.told : tally.opened);
    }
};

using ExistingTaskBadRow = BadRowMatrix<ExistingTaskFixture>;
using AppointmentBadRow = BadRowMatrix<AppointmentFixture>;

const std::vector<Column> kTaskColumns = {
    {"TASKS", "tskImp", "Importance", true},
    {"TASKS", "tskDifficulty", "Difficulty", true},
    {"TASKS", "tskStatus", "Status"},
    {"TASKS", "tskTimeNeeded", "Time Needed"},
    {"TASKS", "tskTimeScheduled", "Time Scheduled"},
    {"TASKS", "tskTimeSpent", "Time Spent"},
    {"TASKS", "tskPossPoints", "Possible Points"},
    {"TASKS", "tskDeadline", "Deadline"},
    {"TASKS", "tskCurrent", "Current"},
    {"TASKS", "tskHasSchedule", "Has Schedule"},
    {"TASKS", "tskDesc", "Description"},
    {"TASKS", "tskNotes", "Notes"},
    {"TASKS", "tskProjectKey", "Project"},
    {"TASKS", "tskTCheckListGUID", "Checklist"},
};

TEST_F(ExistingTaskBadRow, EachHostileValueOpensOrNamesItself) {
    QV_FILE_STORE_ONLY();  // a server's typed columns refuse these values at the door
    seed();
    run("Existing Task", kTaskColumns,
        [this] {
            exec("DELETE FROM TASKS");
            addTask();
        },
        [this] { openTask(); }, {{"TASKS", kTask}});
}

TEST_F(ExistingTaskBadRow, EachHostileValueOfACatalogItemOpensOrNamesItself) {
    QV_FILE_STORE_ONLY();  // a server's typed columns refuse these values at the door
    seed();
    std::vector<Column> columns;
    for (Column c : kTaskColumns) {
        if (std::string(c.name) == "tskHasSchedule" || std::string(c.name) == "tskTCheckListGUID") continue;
        c.table = "TASKSCAT";
        columns.push_back(c);
    }
    columns.push_back({"TASKSCAT", "tskHasChecklist", "Has Checklist"});
    run("Task Catalog item", columns,
        [this] {
            exec("DELETE FROM TASKSCAT");
            exec("INSERT INTO TASKSCAT (tskGUIDID, tskDesc, tskProjectKey, tskImp, tskDifficulty, tskTimeNeeded, "
                 "tskStatus, tskHasChecklist, tskCurrent) VALUES ('" + std::string(kCatalogItem) + "', 'Old', '" +
                 kAlpha + "', 0, 0, 95, 2, 0, 1)");
        },
        [this] { open(6, kCatalogItem); }, {{"TASKSCAT", kCatalogItem}});
}

TEST_F(AppointmentBadRow, EachHostileValueOpensOrNamesItself) {
    QV_FILE_STORE_ONLY();  // a server's typed columns refuse these values at the door
    std::vector<Column> columns = {
        {"TASKAPPTS", "taImp", "Importance", true}, {"TASKAPPTS", "taDifficulty", "Difficulty", true},
        {"TASKAPPTS", "taStartTime", "Start"},      {"TASKAPPTS", "taEndTime", "End"},
        {"TASKAPPTS", "taWasWorked", "Was Worked"}, {"TASKAPPTS", "taTimeWorked", "Time Worked"},
        {"TASKAPPTS", "taTaskDesc", "Description"}, {"TASKAPPTS", "taProject", "Project"},
        {"TASKS", "tskStatus", "Status", true},     {"TASKS", "tskTimeNeeded", "Time Needed"},
        {"TASKS", "tskTimeSpent", "Time Spent"},    {"TASKS", "tskPossPoints", "Possible Points"},
        {"TASKS", "tskDeadline", "Deadline"},       {"TASKS", "tskCurrent", "Current"},
    };
    run("Task Appointment", columns,
        [this] {
            for (const char* table : {"PROJECTS", "TASKS", "TASKAPPTS"}) exec(std::string("DELETE FROM ") + table);
            seed();
        },
        [this] { task_.SetupTask(2, kSlot, {"u0", "u1", "u2", "u3", "u4", "u5"}, 1, "", kSlot); },
        {{"TASKAPPTS", kSlot}, {"TASKS", kTask}});
}

}  // namespace qv
