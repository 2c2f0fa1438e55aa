// The help pop-up through its real window: opened by the dialogs' help
// tools and the host's commands, following links and going back, printing
// to a PDF where no printer is installed, and the tour's start-up tool.
#include <QApplication>
#include <QCheckBox>
#include <QFile>
#include <QMessageBox>
#include <QPrinterInfo>
#include <QTextBrowser>

#include "HostFixture.h"
#include "help/PopHelpViewer.h"
#include "help/frmPopHelp.h"
#include "installer/HelpPages.h"
#include "kit/ToolCell.h"
#include "support/ScopedEnv.h"
#include "view/HostTour.h"
#include "view/HostWindow.h"

namespace qv {
namespace {

const QString kHelp = "frmPopHelp";

class HelpWindow : public HostFixture {
protected:
    void SetUp() override {
        HostFixture::SetUp();
        installHelpPages(folder(), helpPagesSource());
    }
    static QWidget* window() { return StepRunner::formWindow(kHelp); }
    static QTextBrowser* pane() {
        return window() ? window()->findChild<QTextBrowser*>("browsePWindow") : nullptr;
    }
    static QString page() { return pane() ? pane()->toPlainText() : QString(); }
    static void close() { StepRunner::clickTool(kHelp, "smtAction.CLOSE"); }
    void openHelp(StepRunner& steps, int32_t topic) {
        run(steps, [this, topic] { host().window().openHelp(topic); });
    }
};

TEST_F(HelpWindow, TheNewTaskHelpToolOpensItsPageAndBackReturnsFromALink) {
    StepRunner steps;
    QStringList seen;
    steps.when("help tool", [] { return shown("frmTask3"); },
               [] { StepRunner::clickTool("frmTask3", "smtActions.HELP"); }, kStartTimerSettleMs);
    steps.when("page", [] { return page().contains("The New Task window opens"); }, [&seen] {
        seen << window()->windowTitle();
        seen << (QApplication::focusWidget() == pane() ? "focus in page" : "focus elsewhere");
        emit pane()->anchorClicked(QUrl("POP-ADDPROJECT.htm"));
    });
    steps.when("link followed", [] { return page().contains("Projects group tasks"); },
               [] { QTest::keyClick(pane(), Qt::Key_Left, Qt::AltModifier); });
    steps.when("back", [] { return page().contains("The New Task window opens"); }, [this, &seen] {
        // The model went back, not the pane alone.
        const std::string at = host().help().shown()->browsePWindow.LocationURL();
        seen << QString::fromStdString(at.substr(at.find_last_of('/') + 1));
        QTest::keyClick(window(), Qt::Key_Escape);
    });
    steps.when("help closed", [] { return window() == nullptr; },
               [] { StepRunner::clickTool("frmTask3", "smtActions.DONE"); });
    openNewTask(steps);

    EXPECT_TRUE(ranAll(steps));
    EXPECT_EQ(seen, (QStringList{"Quorvel: Creating New Tasks", "focus in page", "POP-TASKDIALOG.htm"}));
    // The one question is the New Task's own, on leaving it.
    EXPECT_EQ(steps.messages(), QStringList{"Cancel creating the current task?"});
}

// Under a German locale the pane shows the German pages, and a link to a
// page not translated lands on the English one.
TEST_F(HelpWindow, PagesInTheUsersLanguageFallBackToEnglishPageByPage) {
    ScopedEnv env;
    env.set("LC_ALL", nullptr).set("LC_MESSAGES", nullptr).set("LANGUAGE", nullptr).set("LANG", "de_DE.UTF-8");
    QFile::remove(QString::fromStdString(folder() + "/help/de/POP-ADDPROJECT.htm"));
    StepRunner steps;
    steps.when("index", [] { return page().contains("Mit einer Aufgabe arbeiten"); },
               [] { emit pane()->anchorClicked(QUrl("POP-ADDPROJECT.htm")); });
    steps.when("English page", [] { return page().contains("Projects group tasks"); },
               [] { emit pane()->anchorClicked(QUrl("POP-KEYWORDS.htm")); });
    steps.when("German page", [] { return page().contains("Stichwörter sind kurze Wörter"); }, [] { close(); });
    openHelp(steps, 5000);
    EXPECT_TRUE(ranAll(steps));
}

TEST_F(HelpWindow, AnUnknownTopicShowsAnEmptyPaneWithoutAMessage) {
    StepRunner steps;
    bool empty = false;
    steps.when("shown", [] { return pane() != nullptr; }, [&empty] {
        empty = pane()->toPlainText().isEmpty();
        close();
    }, 200);
    openHelp(steps, 4242);
    EXPECT_TRUE(ranAll(steps));
    EXPECT_TRUE(empty);
    EXPECT_TRUE(steps.messages().isEmpty());
    EXPECT_FALSE(window());
}

TEST_F(HelpWindow, PrintingAPageWithoutAPrinterMakesAPdf) {
    if (!QPrinterInfo::availablePrinters().isEmpty())
        GTEST_SKIP() << "a printer is installed: nothing is printed in tests";
    const QString pdf = QString::fromStdString(folder()) + "/help/helpindex.pdf";
    StepRunner steps;
    steps.when("print", [] { return page().contains("Help Index"); },
               [] { QTest::keyClick(pane(), Qt::Key_P, Qt::ControlModifier); });
    steps.when("printed", [&pdf] { return QFile::exists(pdf); }, close);
    openHelp(steps, 5000);

    EXPECT_TRUE(ranAll(steps));
    ASSERT_EQ(steps.messages().size(), 2) << steps.messages().join(" | ").toStdString();
    EXPECT_EQ(steps.messages()[0], "Print this help topic? It may take a moment or two to prepare.");
    EXPECT_TRUE(steps.messages()[1].contains(pdf)) << steps.messages()[1].toStdString();
    QFile file(pdf);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.read(5).startsWith("%PDF-"));
}

TEST_F(HelpWindow, ThePreviewOpensAndNoWritesNothing) {
    StepRunner steps;
    int boxes = 0;
    steps.onMessageBox([&boxes](QMessageBox&) { return ++boxes == 1 ? QMessageBox::No : QMessageBox::Yes; });
    bool previewed = false;
    const auto modal = [] { return QApplication::activeModalWidget(); };
    steps.when("no", [] { return page().contains("Adding a Project"); },
               [] { StepRunner::clickTool(kHelp, "smtAction.PRINT"); });
    steps.when("preview", [&] { return boxes == 1 && modal() == window(); },
               [] { StepRunner::clickTool(kHelp, "smtAction.PRINTPREVIEW"); }, 100);
    steps.when("preview shown", [&] { return modal() && modal()->objectName() == "printPreview"; }, [&] {
        previewed = true;
        modal()->close();
    }, 300);
    steps.when("close", [&] { return modal() == window(); }, close);
    openHelp(steps, 800);

    EXPECT_TRUE(ranAll(steps));
    EXPECT_TRUE(previewed);
    EXPECT_EQ(boxes, 2);
    EXPECT_FALSE(QFile::exists(QString::fromStdString(folder()) + "/help/POP-ADDPROJECT.pdf"));
}

TEST_F(HelpWindow, TheToursToolIsKeptInTheHostsSettings) {
    EXPECT_TRUE(host().tour().showTourAtStart());
    bool toolShown = false;
    {  // this runner is gone before the next one starts
        StepRunner tour;
        tour.when("tour", [] { return page().contains("short tour"); }, [&toolShown] {
            ToolCell* c = cell(kHelp, "smtAction.NOSHOW");
            auto* box = c ? c->findChild<QCheckBox*>() : nullptr;
            if (!box) box = c ? qobject_cast<QCheckBox*>(c->control()) : nullptr;
            toolShown = box && box->isVisible() && box->isChecked();
            if (box) box->click();
            close();
        }, 200);
        openHelp(tour, 7000);
        EXPECT_TRUE(ranAll(tour));
    }
    EXPECT_TRUE(toolShown);
    EXPECT_FALSE(HostTour(folder()).showTourAtStart());

    // Any other topic keeps the tool out of sight.
    StepRunner other;
    bool hidden = false;
    other.when("index", [] { return page().contains("Help Index"); }, [&hidden] {
        ToolCell* c = cell(kHelp, "smtAction.NOSHOW");
        hidden = !c || !c->isVisible();
        close();
    }, 200);
    openHelp(other, 5000);
    EXPECT_TRUE(ranAll(other));
    EXPECT_TRUE(hidden);
}

}  // namespace
}  // namespace qv
