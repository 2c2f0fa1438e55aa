// Drafts through the three task dialogs: kept through the error path, offered
// once at the next open, gone after a save that landed or a plain close.

#include <filesystem>
#include <functional>

#include "dialogs/existingtask/ExistingTaskFixture.h"
#include "dialogs/shared/DraftFile.h"
#include "dialogs/shared/DraftKeeper.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/TextEditor.h"

namespace qv {
namespace {

namespace fs = std::filesystem;

constexpr const char* kSlot = "22222222-0000-0000-0000-000000000001";
constexpr const char* kDesc = "Paint the fence and the gate";
constexpr const char* kNotes = "Dark green,\ntwo coats";
// Where the new task's and the stored task's texts land.
#define QV_TASK_TEXT(column, op) \
    "SELECT " column " FROM TASKS WHERE tskGUIDID " op " '99999999-0000-0000-0000-000000000009'"
constexpr const char *kNewDesc = QV_TASK_TEXT("tskDesc", "<>"), *kNewNotes = QV_TASK_TEXT("tskNotes", "<>");
constexpr const char *kTaskDesc = QV_TASK_TEXT("tskDesc", "="), *kTaskNotes = QV_TASK_TEXT("tskNotes", "=");

class DraftsTest : public ExistingTaskFixture {
protected:
    // One task dialog as the tests drive it.
    struct Dialog {
        const char* name;
        int32_t mode;
        std::string key;
        const char* table;  // refused at the save
        const char* event;
        const char* savedDesc;  // where the description lands
        const char* savedNotes;
        std::function<void(DraftsTest&)> open;
        std::function<void(DraftsTest&)> ready;  // until the dialog waits for the user
        std::function<void(DraftsTest&)> save;
        std::function<void(DraftsTest&, bool typed)> leave;  // closes without saving
    };

    void SetUp() override {
        ExistingTaskFixture::SetUp();
        task_.setTempErrReport(std::shared_ptr<Reporter>(&reporter(), [](Reporter*) {}));
        seed();
        addTask();
        exec("INSERT INTO TASKAPPTS (taGUIDID, taTaskGUIDID, taProject, taProjectGUIDID, taStartTime, taEndTime, "
             "taTaskDesc, taImp, taDifficulty, taWasWorked, taTimeWorked, taDuration) VALUES ('" + std::string(kSlot) +
             "', '" + kTask + "', 'Alpha', '" + kAlpha +
             "', '2026-11-24T09:00:00.000', '2026-11-24T10:30:00.000', 'Paint the fence', 2, 3, 0, 0, 90)");
    }

    static std::vector<Dialog> dialogs() {
        // New Task asks before it drops anything, Existing Task when something was typed.
        auto escape = [](bool asks) {
            return [asks](DraftsTest& t, bool typed) {
                if (asks || typed) t.answer(vbYes);
                t.key(vbKeyEscape);
            };
        };
        return {
            {"New Task", 0, "", "TASKS", "INSERT", kNewDesc, kNewNotes, [](DraftsTest& t) { t.open(0); },
             [](DraftsTest& t) { t.fireTimer(); },
             [](DraftsTest& t) {
                 t.then([&t] {
                     t.sheet("smtActions").click(t.tool("smtActions", "QV"));
                     if (t.form().visible()) t.form().hide();  // it stays open for the next task
                 });
             },
             escape(true)},
            {"Existing Task", 1, kTask, "TASKS", "UPDATE", kTaskDesc, kTaskNotes,
             [](DraftsTest& t) { t.openTask(); }, [](DraftsTest&) {},
             [](DraftsTest& t) { t.click("smtActions", "UPDATE"); }, escape(false)},
            {"Task Appointment", 2, kSlot, "TASKAPPTS", "UPDATE", "SELECT taTaskDesc FROM TASKAPPTS",
             kTaskNotes,
             [](DraftsTest& t) {
                 t.task_.SetupTask(2, kSlot, {"u0", "u1", "u2", "u3", "u4", "u5"}, 1, "", kSlot);
             },
             [](DraftsTest&) {}, [](DraftsTest& t) { t.key(vbKeyReturn); },
             [](DraftsTest& t, bool) { t.key(vbKeyEscape); }},
        };
    }

    // The dialog's shown form (the appointment's reference is cleared on close).
    Form& shown() override {
        for (const auto& f : Form::openForms())
            if (f->visible()) return *f;
        return ExistingTaskFixture::shown();
    }

    void typeTexts() {
        then([this] {
            shown().editor("spellTask")->userEdit(kDesc);
            shown().editor("SpellNotes")->userEdit(kNotes);
        });
    }
    void pause() {
        then([this] { fakeClock().advance(DraftKeeper::kDelayMs); });
    }
    std::string draftPath(const Dialog& d) const {
        return DraftFile::pathFor(DraftKeeper::keyOf(d.mode, d.key));
    }
    bool kept(const Dialog& d) const { return fs::exists(draftPath(d)); }

    void allowWrites(const std::string& table) const {
        exec(onServerStore() ? "DROP TRIGGER refuse ON " + table : std::string("DROP TRIGGER refuse"));
    }

    // The user types, a moment passes, and the save meets a store that fails.
    void typeThenFault(const Dialog& d) {
        refuseWrites(d.table, d.event);
        d.ready(*this);
        typeTexts();
        pause();
        then([this, &d] { EXPECT_TRUE(kept(d)) << "not written a moment after the typing"; });
        d.save(*this);
        reporter().clear();
        d.open(*this);
        EXPECT_EQ(reporter().faults().size(), 1u);
        EXPECT_TRUE(Form::openForms().empty());
        allowWrites(d.table);
        reporter().clear();
    }

    std::size_t questionsAsked() {
        std::size_t n = 0;
        for (const auto& m : scriptedUi().messages())
            if (m.text.find("that were not saved. Restore them?") != std::string::npos) ++n;
        return n;
    }
};

TEST_F(DraftsTest, KeptThroughAFaultOfferedOnceAndSavedByYes) {
    for (const auto& d : dialogs()) {
        SCOPED_TRACE(d.name);
        typeThenFault(d);
        EXPECT_TRUE(kept(d));

        // Yes: the texts are back as if typed, and the save stores them.
        const auto asked = questionsAsked();
        scriptedUi().queueAnswer(vbYes);
        d.ready(*this);
        then([this] {
            EXPECT_EQ(shown().editor("spellTask")->text(), kDesc);
            EXPECT_EQ(shown().editor("SpellNotes")->text(), kNotes);
        });
        d.save(*this);
        d.open(*this);
        ASSERT_EQ(questionsAsked(), asked + 1);
        const auto& q = scriptedUi().messages()[asked];
        EXPECT_EQ(q.title, kProgramTitle);
        EXPECT_EQ(q.style, vbYesNo + vbQuestion);
        EXPECT_NE(q.text.find(" has changes from 1/15/2024 09:00 that were not saved."), std::string::npos)
            << q.text;
        EXPECT_EQ(readOne(d.savedDesc), kDesc);
        EXPECT_EQ(readOne(d.savedNotes), kNotes);
        EXPECT_FALSE(kept(d)) << "the save landed";
        EXPECT_TRUE(reporter().faults().empty());
    }
}

TEST_F(DraftsTest, NoDropsTheDraftAndTheQuestionIsAskedOnce) {
    for (const auto& d : dialogs()) {
        SCOPED_TRACE(d.name);
        const std::string stored = d.mode == 0 ? std::string() : readOne(d.savedDesc);
        typeThenFault(d);
        const auto asked = questionsAsked();
        scriptedUi().queueAnswer(vbNo);
        d.ready(*this);
        then([this, stored] { EXPECT_EQ(shown().editor("spellTask")->text(), stored); });
        d.leave(*this, false);
        d.open(*this);
        EXPECT_EQ(questionsAsked(), asked + 1);
        EXPECT_FALSE(kept(d));
        // Opened again: nothing is asked.
        d.ready(*this);
        d.leave(*this, false);
        d.open(*this);
        EXPECT_EQ(questionsAsked(), asked + 1);
    }
}

TEST_F(DraftsTest, ACloseWithoutSavingOrASaveLeavesNoDraft) {
    for (const auto& d : dialogs()) {
        SCOPED_TRACE(d.name);
        for (bool save : {false, true}) {
            d.ready(*this);
            typeTexts();
            pause();
            then([this, &d] { EXPECT_TRUE(kept(d)); });
            save ? d.save(*this) : d.leave(*this, true);
            d.open(*this);
            EXPECT_FALSE(kept(d)) << (save ? "after the save" : "after the close");
        }
        EXPECT_EQ(readOne(d.savedNotes), kNotes);
    }
    EXPECT_EQ(questionsAsked(), 0u);
    EXPECT_TRUE(reporter().faults().empty());
}

// A draft is not offered where it would change nothing, where it is
// damaged, or for another task; the other task's draft stays.
TEST_F(DraftsTest, OfferedOnlyForItsOwnTaskAndOnlyWhereItChangesSomething) {
    const Dialog d = dialogs()[1];
    typeThenFault(d);
    exec("INSERT INTO TASKS (tskGUIDID, tskDesc, tskStatus, tskImp, tskDifficulty, tskTimeNeeded, tskTimeSpent, "
         "tskProject, tskProjectKey) VALUES ('99999999-0000-0000-0000-000000000008', 'Other', 1, 2, 3, 30, 0, "
         "'Alpha', '" + std::string(kAlpha) + "')");
    key(vbKeyEscape);
    openTask(1, "99999999-0000-0000-0000-000000000008");
    EXPECT_EQ(questionsAsked(), 0u);
    EXPECT_TRUE(kept(d));

    // The texts were stored meanwhile (a save whose draft a kill kept).
    const std::string notes =
        onServerStore() ? "E'Dark green,\\ntwo coats'" : "'Dark green,' || char(10) || 'two coats'";
    exec(std::string("UPDATE TASKS SET tskDesc='") + kDesc + "', tskNotes=" + notes + " WHERE tskGUIDID='" +
         kTask + "'");
    d.leave(*this, false);
    d.open(*this);
    EXPECT_EQ(questionsAsked(), 0u);
    EXPECT_FALSE(kept(d)) << "a draft equal to the row is dropped";

    writeFile(draftPath(d), "quorvel-draft 1\nstore 0\n");
    d.leave(*this, false);
    d.open(*this);
    EXPECT_EQ(questionsAsked(), 0u);
    EXPECT_FALSE(kept(d)) << "a damaged draft is removed";
}

// The base keeps only the ticked keywords: a stored one unticked and
// another ticked both come back.
TEST_F(DraftsTest, KeywordTicksAndUnticksComeBack) {
    const Dialog d = dialogs()[1];
    linkKeyword(kKeyBlue);
    refuseWrites(d.table, d.event);
    click("smtKeywords", kKeyBlue);
    click("smtKeywords", kKeyRed);
    pause();
    d.save(*this);
    d.open(*this);
    ASSERT_EQ(reporter().faults().size(), 1u);
    allowWrites(d.table);
    reporter().clear();
    scriptedUi().queueAnswer(vbYes);
    then([this] {
        EXPECT_FALSE(tool("smtKeywords", kKeyBlue).checked());
        EXPECT_TRUE(tool("smtKeywords", kKeyRed).checked());
    });
    d.save(*this);
    d.open(*this);
    EXPECT_TRUE(reporter().faults().empty());
    const std::string linked = std::string(" FROM TaskKeywords WHERE ktTASKGUID='") + kTask + "'";
    EXPECT_EQ(readOne("SELECT COUNT(*)" + linked), "1");
    EXPECT_EQ(readOne("SELECT ktKEYGUID" + linked), kKeyRed);
    EXPECT_FALSE(kept(d));
}

// "1D 1:00" in Time Spent is the duration checker's own failure: replayed,
// it would fail again at every open. It is left out; the rest comes back.
TEST_F(DraftsTest, AChangeWhoseReplayFailsIsLeftOutAndTheRestComesBack) {
    const Dialog d = dialogs()[1];
    typeTexts();
    pause();
    then([this] {
        Sheet& times = sheet("smtTimes");
        Tool& spent = tool("smtTimes", "TIMESPENT");
        if (times.beginEdit(spent)) times.userEdit(spent, "1D 1:00");
        times.endEdit(spent);
    });
    for (int open = 0; open < 2; ++open) {
        reporter().clear();
        if (open > 0) scriptedUi().queueAnswer(vbYes);
        scriptedUi().queueAnswer(vbOK);  // the checker's own message, after the fault
        d.open(*this);
        EXPECT_EQ(reporter().faults().size(), 1u) << "open " << open;
        EXPECT_TRUE(kept(d)) << "open " << open;
    }
    reporter().clear();
    scriptedUi().queueAnswer(vbYes);
    then([this] {
        EXPECT_EQ(shown().editor("spellTask")->text(), kDesc);
        EXPECT_EQ(tool("smtTimes", "TIMESPENT").text(), "0:45");
    });
    d.save(*this);
    d.open(*this);
    EXPECT_TRUE(reporter().faults().empty());
    EXPECT_EQ(readOne(d.savedNotes), kNotes);
    EXPECT_FALSE(kept(d));
}

}  // namespace
}  // namespace qv
