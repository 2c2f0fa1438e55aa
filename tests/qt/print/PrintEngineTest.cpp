// The desktop print engine on the offscreen platform: a New Task printed
// into a PDF with its footer and page numbers, a long schedule across
// pages with no row cut, and the preview window.

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "print/QtPrintSurface.h"
#include "print/ReportRenderer.h"
#include "reports/PrintSettings.h"
#include "reports/clsHTMLMake.h"
#include "session/clsTask2.h"
#include "session/globals/SessionGlobals.h"
#include "support/TestEnv.h"
#include "toolkit/Form.h"
#include "toolkit/Ports.h"
#include "toolkit/Sheet.h"
#include "toolkit/TextEditor.h"
#include "toolkit/Ui.h"

namespace qv {

namespace {

// What a poppler tool prints for a file; empty when the tool is missing.
QString poppler(const QString& tool, const QStringList& args) {
    QProcess p;
    p.start(tool, args);
    if (!p.waitForFinished(30000) || p.exitCode() != 0) return {};
    return QString::fromUtf8(p.readAllStandardOutput());
}

// A copy of a PDF for a person to look at, when the environment names one.
void keep(const std::string& pdf, const char* variable) {
    if (const char* to = std::getenv(variable))
        std::filesystem::copy_file(pdf, to, std::filesystem::copy_options::overwrite_existing);
}

int pdfPages(const std::string& pdf) {
    const QString info = poppler("pdfinfo", {QString::fromStdString(pdf)});
    for (const QString& line : info.split('\n'))
        if (line.startsWith("Pages:")) return line.mid(6).trimmed().toInt();
    return -1;
}

class PrintEngine : public TestEnv {
protected:
    void SetUp() override {
        TestEnv::SetUp();
        ports().print = &surface_;
    }

    // An Existing-Task-like report whose schedule has the given rows.
    std::string scheduleReport(int rows) const {
        clsHTMLMake m;
        m.setFontface("Arial");
        m.setHeadingSize(12);
        m.setReportTitle("A long schedule");
        m.setColumnHeadings1("What,Value");
        m.setColumnHeadings2("Start,End,Duration,Done?,Time Spent");
        m.setColumnWidth1("40%,60%");
        m.setColumnWidth2("30%,30%,20%,20%,20%");
        m.setColumnAlignment1("right,left");
        m.setColumnAlignment2("center,center,center,center,center");
        m.setCellPading("4");
        m.setCellSpacing("4");
        m.setGridDetailbackColor("#FFFFFF");
        m.setReportSubTitle(1, "Task Information:");
        m.setReportSubTitle(4, "Schedule:");
        ReportRows task(2, 1);
        task.at(0, 0) = "Task Description:";
        task.at(1, 0) = "Water the garden";
        m.setTaskRows(task);
        ReportRows sched(5, rows + 1);
        for (int r = 0; r < rows; ++r) {
            sched.at(0, r) = "Row " + std::to_string(r + 1) + " start";
            sched.at(1, r) = "end";
            sched.at(2, r) = "0:30";
            sched.at(3, r) = r % 2 ? "True" : "False";
            sched.at(4, r) = "0:" + std::to_string(10 + r % 50);
        }
        m.setScheduleRows(sched);
        m.setChecklist("--NONE--");
        m.setNotes("--NONE--");
        const std::string path = folder() + "/Quorvel Reports/ExistingTask.htm";
        std::ofstream(path) << m.theHTML();
        return path;
    }
    static PrintJob jobFor(const std::string& file) {
        PrintJob job;
        job.file = file;
        job.footer = "{newline}{line}{Left}Quorvel - Version 1.14{Right}Page {PageNum}";
        job.footerFont = "Arial";
        job.footerSize = 9;
        job.marginLeft = job.marginRight = job.marginTop = job.marginBottom = 1440;
        return job;
    }

    QtPrintSurface surface_{QtPrintSurface::Options{false, true, true}};
};

}  // namespace

TEST_F(PrintEngine, ANewTaskPrintsIntoAPdfWithItsFooter) {
    clsTask2 task;
    scriptedUi().queueAction([this] { fakeClock().advance(600); });
    const auto newTask = [] {
        for (const auto& f : Form::openForms())
            if (f->name() == "frmTask3") return f;
        throw std::logic_error("New Task is not open");
    };
    scriptedUi().queueAction([&] {
        newTask()->editor("spellTask")->userEdit("Plant the tulip bulbs");
        newTask()->editor("SpellNotes")->userEdit("Ten bulbs by the fence, before the first frost.");
    });
    scriptedUi().queueAction([&] {
        scriptedUi().queueAnswer(vbYes);  // the print question
        scriptedUi().queueAnswer(vbOK);   // where the PDF went
        newTask()->sheet("smtActions")->click(newTask()->sheet("smtActions")->tool("PRINT"));
    });
    scriptedUi().queueAction([&] {
        scriptedUi().queueAnswer(vbYes);
        newTask()->keyDown(vbKeyEscape);
    });
    task.SetupTask(0, {}, {"u", "", "", "", "", ""}, 0, PrintSettings::defaults(0));

    const std::string pdf = folder() + "/Quorvel Reports/NewTask.pdf";
    EXPECT_EQ(surface_.lastPdf(), pdf);
    EXPECT_EQ(surface_.lastPageCount(), 1);
    EXPECT_NE(scriptedUi().messages().at(1).text.find(pdf), std::string::npos)
        << "the user is told where it went";
    ASSERT_TRUE(std::filesystem::exists(pdf));
    EXPECT_EQ(pdfPages(pdf), 1);
    const QString text = poppler("pdftotext", {"-layout", QString::fromStdString(pdf), "-"});
    EXPECT_TRUE(text.contains("Plant the tulip bulbs")) << text.toStdString();
    EXPECT_TRUE(text.contains("Not yet saved.")) << text.toStdString();
    EXPECT_TRUE(text.contains("Ten bulbs by the fence")) << text.toStdString();
    EXPECT_TRUE(text.contains(QRegularExpression("Quorvel - Version 1.14 +1\\s*$"))) << text.toStdString();
    keep(pdf, "QV_KEEP_PDF");
}

TEST_F(PrintEngine, ALongScheduleGoesAcrossPagesWithNoRowCut) {
    const std::string file = scheduleReport(300);
    scriptedUi().queueAnswer(vbOK);
    surface_.print(jobFor(file));
    const int pages = surface_.lastPageCount();
    EXPECT_GT(pages, 3);
    EXPECT_EQ(pdfPages(surface_.lastPdf()), pages);
    keep(surface_.lastPdf(), "QV_KEEP_SCHEDULE_PDF");
    const QString text = poppler("pdftotext", {"-layout", QString::fromStdString(surface_.lastPdf()), "-"});
    const QStringList pageTexts = text.split('\f', Qt::SkipEmptyParts);
    ASSERT_EQ(pageTexts.size(), pages);
    for (int i = 0; i < pages; ++i)
        EXPECT_TRUE(pageTexts[i].contains(QRegularExpression(QString("Page %1\\s*$").arg(i + 1)))) << i;
    EXPECT_TRUE(text.contains("Row 300 start"));
    EXPECT_FALSE(text.contains("Row 301"));

    // Every row of the schedule lies on one page.
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    ReportRenderer report(jobFor(file));
    report.applyMargins(printer);
    report.layout(printer);
    ASSERT_EQ(report.pageCount(), pages);
    const auto& tops = report.pageTops();
    auto pageOf = [&tops](double y) {
        return static_cast<int>(std::upper_bound(tops.begin(), tops.end(), y) - tops.begin());
    };
    for (std::size_t i = 1; i < tops.size(); ++i)
        EXPECT_LE(tops[i] - tops[i - 1], report.body().height() + 0.01);
    QTextTable* schedule = nullptr;
    for (QTextFrame* frame : report.document().rootFrame()->childFrames())
        if (auto* t = qobject_cast<QTextTable*>(frame); t && t->columns() == 5) schedule = t;
    ASSERT_NE(schedule, nullptr);
    ASSERT_EQ(schedule->rows(), 301);  // the header and 300 appointments
    auto* layout = report.document().documentLayout();
    int crossings = 0;
    for (int r = 0; r < schedule->rows(); ++r) {
        double top = 1e18, bottom = -1;
        for (int c = 0; c < 5; ++c) {
            const QRectF rect =
                layout->blockBoundingRect(schedule->cellAt(r, c).firstCursorPosition().block());
            top = std::min(top, rect.top());
            bottom = std::max(bottom, rect.bottom());
        }
        if (pageOf(top) != pageOf(bottom - 0.5)) ++crossings;
    }
    EXPECT_EQ(crossings, 0);
}

TEST_F(PrintEngine, ThePreviewOpensAsAWindow) {
    const std::string file = scheduleReport(40);
    bool seen = false;
    surface_.setPreviewShown([&seen](QPrintPreviewDialog& dialog) {
        seen = dialog.isVisible();
        EXPECT_EQ(dialog.windowTitle().toStdString(), "Quorvel - Version 1.14 - Print Preview");
        if (const char* shot = std::getenv("QV_PREVIEW_SHOT")) {
            dialog.resize(900, 700);
            QApplication::processEvents();
            dialog.grab().save(shot);
        }
        dialog.close();
    });
    surface_.preview(jobFor(file));
    EXPECT_TRUE(seen);
    EXPECT_GE(surface_.lastPageCount(), 1);
    EXPECT_TRUE(surface_.lastPdf().empty());
}

}  // namespace qv
