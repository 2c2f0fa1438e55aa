// The task windows' splitters: a drag writes the window's layout file; the
// next window comes back in the same arrangement.
#include <QSplitter>
#include <filesystem>

#include "HostFixture.h"
#include "kit/SplitterView.h"

namespace qv {
namespace {

constexpr const char* kTask = "99999999-0000-0000-0000-000000000009";

class SplitterLayout : public HostFixture {
protected:
    struct Case {
        const char* form;
        const char* file;
        int splitter;  // New Task: Status over Project; Existing Task: the middle column
        int dy;
        bool stored;  // the Existing Task dialog, on a stored task
    };
    static QSplitter* column(const Case& c) {
        QWidget* w = StepRunner::formWindow(c.form);
        auto* view = w ? w->findChild<SplitterView*>("splitTask") : nullptr;
        return view ? view->splitters().at(c.splitter) : nullptr;
    }
    // Opens the case's window, runs the given steps in it and closes it.
    void session(const Case& c, const std::function<void(StepRunner&)>& add) {
        StepRunner steps;
        add(steps);
        steps.then("close", [&c] { QTest::mouseClick(button(c.form, "smtActions.DONE"), Qt::LeftButton); });
        steps.when("closed", [&c] { return !shown(c.form); }, [] {});
        if (c.stored) openTask(steps, kTask);
        else openNewTask(steps);
        ASSERT_TRUE(ranAll(steps));
    }
};

TEST_F(SplitterLayout, DragWritesTheLayoutFileAndTheNextWindowRestoresIt) {
    exec(std::string("INSERT INTO TASKS (tskGUIDID, tskDesc, tskStatus, tskImp, tskDifficulty, tskTimeNeeded, "
                     "tskCurrent) VALUES ('") + kTask + "', 'Paint the fence', 1, 2, 3, 90, 1)");
    for (const Case& c : {Case{"frmTask3", "QuorvelTask.slf", 2, 60, false},
                          Case{"frmExistingTask", "QuorvelETask.slf", 3, 50, true}}) {
        SCOPED_TRACE(c.form);
        const auto file = std::filesystem::path(folder()) / c.file;
        ASSERT_FALSE(std::filesystem::exists(file));
        QList<int> before, dragged, reopened;
        const auto open = [&c] { return column(c) != nullptr; };
        session(c, [&](StepRunner& steps) {
            steps.when("drag", open, [&] {
                before = column(c)->sizes();
                drag(column(c)->handle(1), c.dy);
            }, kStartTimerSettleMs);
            steps.when("written", [&file] { return std::filesystem::exists(file); },
                       [&] { dragged = column(c)->sizes(); });
        });
        ASSERT_EQ(dragged.size(), 2);
        EXPECT_NE(dragged, before);
        EXPECT_GT(std::filesystem::file_size(file), 0u);

        session(c, [&](StepRunner& steps) {
            steps.when("look", open, [&] { reopened = column(c)->sizes(); }, kStartTimerSettleMs);
        });
        EXPECT_EQ(reopened, dragged);
    }
}

}  // namespace
}  // namespace qv
