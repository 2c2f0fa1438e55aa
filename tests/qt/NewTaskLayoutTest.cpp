// The New Task splitter: a drag writes the layout file; the next window
// comes back in the same arrangement.
#include <filesystem>

#include <QAbstractButton>
#include <QMouseEvent>
#include <QSplitter>
#include <QSplitterHandle>
#include <QTest>

#include "HostFixture.h"
#include "kit/SplitterView.h"
#include "kit/ToolCell.h"

namespace qv {
namespace {

const QString kForm = "frmTask3";

class NewTaskLayout : public HostFixture {
protected:
    static SplitterView* splitter() {
        QWidget* w = StepRunner::formWindow(kForm);
        return w ? w->findChild<SplitterView*>("splitTask") : nullptr;
    }
    // The first column: Status over Project.
    static QSplitter* firstColumn() { return splitter()->splitters().at(2); }

    static void drag(QSplitterHandle* handle, int dy) {
        const QPoint from = handle->rect().center();
        QTest::mousePress(handle, Qt::LeftButton, {}, from);
        QMouseEvent move(QEvent::MouseMove, QPointF(from + QPoint(0, dy)), handle->mapToGlobal(QPointF(from + QPoint(0, dy))),
                         Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(handle, &move);
        QTest::mouseRelease(handle, Qt::LeftButton, {}, from + QPoint(0, dy));
    }
    static void close(StepRunner& steps) {
        steps.then("close", [] {
            ToolCell* done = cell(kForm, "smtActions.DONE");
            QTest::mouseClick(qobject_cast<QAbstractButton*>(done->control()), Qt::LeftButton);
        });
        steps.when("closed", [] { return !shown(kForm); }, [] {});
    }
    [[nodiscard]] std::filesystem::path layoutFile() const {
        return std::filesystem::path(folder()) / "QuorvelTask.slf";
    }
};

TEST_F(NewTaskLayout, DragWritesTheLayoutFileAndTheNextWindowRestoresIt) {
    ASSERT_FALSE(std::filesystem::exists(layoutFile()));
    QList<int> before, dragged;
    StepRunner first;
    first.when("drag", [] { return splitter() != nullptr; },
               [&before] {
                   before = firstColumn()->sizes();
                   drag(firstColumn()->handle(1), 60);
               },
               kStartTimerSettleMs);
    first.when("written", [this] { return std::filesystem::exists(layoutFile()); },
               [&dragged] { dragged = firstColumn()->sizes(); });
    close(first);
    openNewTask(first);
    ASSERT_TRUE(first.skipped().isEmpty()) << first.skipped().join(", ").toStdString();
    ASSERT_EQ(dragged.size(), 2);
    EXPECT_NE(dragged, before);
    EXPECT_GT(std::filesystem::file_size(layoutFile()), 0u);

    QList<int> reopened;
    StepRunner second;
    second.when("look", [] { return splitter() != nullptr; }, [&reopened] { reopened = firstColumn()->sizes(); },
                kStartTimerSettleMs);
    close(second);
    openNewTask(second);
    EXPECT_TRUE(second.skipped().isEmpty()) << second.skipped().join(", ").toStdString();
    EXPECT_EQ(reopened, dragged);
}

}  // namespace
}  // namespace qv
