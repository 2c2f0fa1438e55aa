// Two editors of one task: different fields both stay (keyword links
// included); the same field is asked about.

#include <functional>
#include <string>
#include <vector>

#include "dialogs/existingtask/ExistingTaskFixture.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/Ui.h"

namespace qv {

namespace {

constexpr const char* kKeyGreen = "EEEEEEEE-0000-0000-0000-000000000005";
constexpr const char* kKeyGone = "FFFFFFFF-0000-0000-0000-000000000006";

class ExistingTaskConcurrency : public Seeded<ExistingTaskFixture> {
protected:
    std::string links() const {
        return readOne("SELECT count(*) FROM TaskKeywords WHERE ktTASKGUID='" + std::string(kTask) + "'");
    }
    bool linked(const std::string& keyword) const {
        return readOne("SELECT count(*) FROM TaskKeywords WHERE ktTASKGUID='" + std::string(kTask) +
                       "' AND ktKEYGUID='" + keyword + "'") == "1";
    }
    void fresh() {
        exec("DELETE FROM TASKS");
        exec("DELETE FROM TaskKeywords");
        addTask();
        events_.clear();
        scriptedUi().clearMessages();
    }
    void editor(const std::string& name, const std::string& text) {
        then([this, name, text] { eform().editor(name)->userEdit(text); });
    }
};

}  // namespace

TEST_F(ExistingTaskConcurrency, DifferentFieldsOfTwoEditorsBothStay) {
    const std::string task = kTask;
    struct Case {
        const char* name;
        std::function<void()> mine;
        std::string theirs;
        std::function<void()> check;
    };
    const std::vector<Case> cases = {
        {"description, notes", [&] { editor("spellTask", "Paint the gate"); },
         "UPDATE TASKS SET tskNotes='Their notes'",
         [&] {
             EXPECT_EQ(column("tskDesc"), "Paint the gate");
             EXPECT_EQ(column("tskNotes"), "Their notes");
         }},
        {"notes, description", [&] { editor("SpellNotes", "My notes"); },
         "UPDATE TASKS SET tskDesc='Their desc'",
         [&] {
             EXPECT_EQ(column("tskDesc"), "Their desc");
             EXPECT_EQ(column("tskNotes"), "My notes");
         }},
        {"status, deadline", [&] { choose("STATUS", "On Hold"); },
         "UPDATE TASKS SET tskDeadline='2026-03-01T00:00:00.000'",
         [&] {
             EXPECT_EQ(column("tskStatus"), "2");
             EXPECT_EQ(column("tskDeadline").substr(0, 10), "2026-03-01");
         }},
        {"deadline, status", [&] { then([this] { eform().dateBox("ctDeadline")->userSetValue(46000.0); }); },
         "UPDATE TASKS SET tskStatus=2",
         [&] {
             EXPECT_EQ(column("tskStatus"), "2");
             EXPECT_EQ(column("tskDeadline").substr(0, 10), "2025-12-09");
         }},
        {"keywords, project", [&] { click("smtKeywords", kKeyRed); },
         "UPDATE TASKS SET tskProject='Beta', tskProjectKey='" + std::string(kBeta) + "'",
         [&] {
             EXPECT_EQ(column("tskProjectKey"), kBeta);
             EXPECT_TRUE(linked(kKeyRed));
         }},
        {"project, keywords", [&] { choose("PROJECT", "Beta"); },
         "INSERT INTO TaskKeywords (ktTASKGUID, ktTask, ktKEYGUID, ktKeyword) VALUES ('" + task +
             "', 'Paint the fence', '" + kKeyBlue + "', 'Blue')",
         [&] {
             EXPECT_EQ(column("tskProject"), "Beta");
             EXPECT_TRUE(linked(kKeyBlue));
         }},
        {"importance, difficulty: the points follow both", [&] { choose("IMP", g().ImportanceList[4]); },
         "UPDATE TASKS SET tskDifficulty=0",
         [&] {
             EXPECT_EQ(column("tskImp"), "4");
             EXPECT_EQ(column("tskDifficulty"), "0");
             const auto& p = g().PointsTable;
             EXPECT_EQ(column("tskPossPoints"), std::to_string(p[4] + p[5] + p[11]));
         }},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        fresh();
        c.mine();
        otherUser(c.theirs);
        click("smtActions", "UPDATE");
        openTask();
        c.check();
        EXPECT_TRUE(scriptedUi().messages().empty()) << scriptedUi().messages().front().text;
        EXPECT_EQ(count("TaskUpdated"), 1);
        EXPECT_TRUE(reporter().faults().empty());
    }
}

// No keeps the dialog with what was typed and stores nothing; Yes puts the
// user's value over the other user's and keeps their other changes.
TEST_F(ExistingTaskConcurrency, TheSameFieldIsAskedAboutFirst) {
    fresh();
    editor("spellTask", "My desc");
    editor("SpellNotes", "My notes");
    otherUser("UPDATE TASKS SET tskDesc='Their desc', tskNotes='Their notes', tskTimeScheduled=77");
    answer(vbNo);
    click("smtActions", "UPDATE");
    then([this] {
        ASSERT_EQ(scriptedUi().messages().size(), 1U);
        const auto& m = scriptedUi().messages().front();
        EXPECT_EQ(m.title, kProgramTitle);
        EXPECT_EQ(m.style, vbYesNo);
        EXPECT_EQ(
            m.text,
            "Another user changed Description, Notes since you opened this task.\r\n\r\nOverwrite them with "
            "your changes? (No saves nothing and keeps this window open.)");
        EXPECT_TRUE(eform().visible());
        EXPECT_EQ(eform().editor("spellTask")->text(), "My desc");
        EXPECT_EQ(eform().editor("SpellNotes")->text(), "My notes");
        EXPECT_EQ(column("tskDesc"), "Their desc");
        EXPECT_EQ(count("TaskUpdated"), 0);
        EXPECT_EQ(count("DoCloseTaskForm"), 0);
    });
    answer(vbYes);
    click("smtActions", "UPDATE");
    openTask();
    EXPECT_EQ(scriptedUi().messages().size(), 2U);
    EXPECT_EQ(column("tskDesc"), "My desc");
    EXPECT_EQ(column("tskNotes"), "My notes");
    EXPECT_EQ(column("tskTimeScheduled"), "77") << "their change to another field stays";
    EXPECT_EQ(count("TaskUpdated"), 1);
    EXPECT_TRUE(reporter().faults().empty());
}

// As loaded: Red and Green, and a link to a keyword that is gone. The user
// unticks Red and ticks Blue; meanwhile another user removes Green and links
// a keyword made after the dialog opened. The user's changes apply to what
// stands; the gone keyword's link goes; every row carries the description.
TEST_F(ExistingTaskConcurrency, KeywordLinksMergeThreeWays) {
    addKeyword(kKeyGreen, "Colour", "Green");
    fresh();
    for (const char* k : {kKeyRed, kKeyGreen, kKeyGone}) linkKeyword(k);
    click("smtKeywords", kKeyRed);
    click("smtKeywords", kKeyBlue);
    editor("spellTask", "Paint the gate");
    otherUser("DELETE FROM TaskKeywords WHERE ktKEYGUID='" + std::string(kKeyGreen) + "'");
    then([this] {
        addKeyword("12121212-0000-0000-0000-000000000012", "Size", "Large");
        linkKeyword("12121212-0000-0000-0000-000000000012");
    });
    click("smtActions", "UPDATE");
    openTask();
    EXPECT_FALSE(linked(kKeyRed));
    EXPECT_TRUE(linked(kKeyBlue));
    EXPECT_FALSE(linked(kKeyGreen));
    EXPECT_FALSE(linked(kKeyGone));
    EXPECT_TRUE(linked("12121212-0000-0000-0000-000000000012"));
    EXPECT_EQ(links(), "2");
    EXPECT_EQ(readOne("SELECT count(*) FROM TaskKeywords WHERE ktTask='Paint the gate'"), "2");
    EXPECT_EQ(
        readOne("SELECT ktKeyword FROM TaskKeywords WHERE ktKEYGUID='12121212-0000-0000-0000-000000000012'"),
        "Large");
}

}  // namespace qv
