// Page Setup and printing from the New Task window, through the host; the
// host keeps the print strings the component hands back.

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>

#include "HostFixture.h"
#include "kit/ToolCell.h"
#include "print/QtPrintSurface.h"
#include "session/clsTask2.h"
#include "values/types/CStringBag.h"
#include "view/HostSession.h"

namespace qv {
namespace {

const QString kForm = "frmTask3";

class PrintWindows : public HostFixture {
protected:
    static void choose(const QString& key) {
        QTimer::singleShot(0, [key] {
            if (QWidget* w = StepRunner::formWindow(kForm))
                if (auto* a = w->findChild<QAction*>(key)) a->trigger();
        });
    }
    static QWidget* preview() {
        QWidget* w = QApplication::activeModalWidget();
        return w && w->objectName() == "printPreview" ? w : nullptr;
    }
};

TEST_F(PrintWindows, PageSetupPreviewAndPrintFromTheNewTaskWindow) {
    exec("INSERT INTO PROJECTS (prjGUIDID, prjProject) VALUES ('AAAAAAAA-0000-0000-0000-000000000001', "
         "'Home')");
    StepRunner steps;
    steps.when("page setup", [] { return shown(kForm); }, [] { choose("PAGESETUP"); }, kStartTimerSettleMs);
    steps.when("heading", [] { return shown("frmPageSetup"); }, [] {
        QWidget* w = StepRunner::formWindow("frmPageSetup");
        EXPECT_NE(w->findChild<QPushButton*>("HCOLOR.choose"), nullptr);
        EXPECT_TRUE(w->windowTitle().endsWith("Page Setup"));
        auto* heading = w->findChild<ToolCell*>("smtPrinting(1).HEADING");
        ASSERT_NE(heading, nullptr);
        StepRunner::typeInto(heading->findChild<QLineEdit*>(), " for Home");
        // The heading's colour shows as a swatch on its button, and follows the number.
        auto* colour = w->findChild<ToolCell*>("smtPrinting(1).HCOLOR");
        ASSERT_NE(colour, nullptr);
        auto* edit = colour->findChild<QLineEdit*>();
        edit->clear();
        StepRunner::typeInto(edit, "16711680");  // blue: red is the low byte
        QApplication::processEvents();
        const QImage shown = w->findChild<QPushButton*>("HCOLOR.choose")->icon().pixmap(16).toImage();
        EXPECT_EQ(shown.pixelColor(8, 8), QColor(Qt::blue));
        // The printer list offers the no-printer pick where none is installed.
        auto* printer = w->findChild<ToolCell*>("smtPrinting(0).PRINTER");
        ASSERT_NE(printer, nullptr);
        EXPECT_GE(printer->findChild<QComboBox*>()->count(), 1);
        StepRunner::clickTool("frmPageSetup", "smtActions.OK");
    });
    steps.when("preview", [] { return !shown("frmPageSetup"); }, [] { choose("PRINTPREVIEW"); });
    steps.when("preview shown", [] { return preview() != nullptr; }, [] { preview()->close(); }, 300);
    steps.when("print", [] { return !preview(); }, [] { choose("PRINT"); });
    const QString pdf = QString::fromStdString(folder()) + "/Quorvel Reports/NewTask.pdf";
    steps.when("printed", [pdf] { return QFile::exists(pdf) || !shown(kForm); }, StepRunner::closeAll, 200);
    openNewTask(steps);

    EXPECT_TRUE(ranAll(steps));
    EXPECT_TRUE(steps.messages().join("\n").contains("Print Preview this Task?"))
        << steps.messages().join("\n").toStdString();
    const std::string html = [this] {
        QFile f(QString::fromStdString(folder()) + "/Quorvel Reports/NewTask.htm");
        return f.open(QIODevice::ReadOnly) ? f.readAll().toStdString() : std::string();
    }();
    EXPECT_NE(html.find("Quorvel Task Report for Home"), std::string::npos) << html;
    if (host().printSurface().lastPdf().empty()) GTEST_SKIP() << "a printer is installed: printed on it";
    EXPECT_TRUE(QFile::exists(pdf));
    EXPECT_EQ(host().printSurface().lastPageCount(), 1);
}

TEST_F(PrintWindows, TheHostKeepsTheStringsItIsHanded) {
    // A slot never handed back gets a whole default string.
    CStringBag bag;
    bag.setContents(host().session().printInfo(3));
    EXPECT_FALSE(bag.ReadItem("TOP").empty());
    EXPECT_EQ(bag.ReadItem("PSCHEDULE"), "");
    bag.setContents(host().session().printInfo(1));
    EXPECT_EQ(bag.ReadItem("PSCHEDULE"), "True");
    // What the Existing Task dialog hands back through updateMainPrintInfo stays.
    host().session().task().updateMainPrintInfo("PRINTER=Office\t", 1);
    EXPECT_EQ(host().session().printInfo(1), "PRINTER=Office\t");
}

}  // namespace
}  // namespace qv
