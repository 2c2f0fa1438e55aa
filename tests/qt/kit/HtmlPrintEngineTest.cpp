// The HTML print engine: footer markers taken apart, and a page laid out
// into a PDF with its heading, footer and one page per screenful.
#include <gtest/gtest.h>

#include <QFile>
#include <QPrinter>
#include <QTemporaryDir>

#include "kit/HtmlPrintEngine.h"
#include "kit/PageFooter.h"

namespace qv {
namespace {

TEST(PageFooter, MarkersGiveTheRuleTheBlankLinesTheSidesAndThePageNumber) {
    const PageFooter full("{newline}{line}{Left}Quorvel - Version 1.14{Right}Page {PageNum}");
    EXPECT_TRUE(full.rule());
    EXPECT_EQ(full.blankLines(), 1);
    EXPECT_EQ(full.left(3), "Quorvel - Version 1.14");
    EXPECT_EQ(full.right(3), "Page 3");
    EXPECT_FALSE(full.empty());

    const PageFooter swapped("{Right}{PageNum}{Left}left");
    EXPECT_FALSE(swapped.rule());
    EXPECT_EQ(swapped.left(1), "left");
    EXPECT_EQ(swapped.right(12), "12");

    EXPECT_TRUE(PageFooter("").empty());
    EXPECT_TRUE(PageFooter("{newline}{Left}{Right}").empty());
}

int pagesOf(const QString& pdf) {
    QFile f(pdf);
    if (!f.open(QIODevice::ReadOnly)) return -1;
    const QByteArray data = f.readAll();
    return static_cast<int>(data.count("/Type /Page\n") + data.count("/Type /Page\r") + data.count("/Type /Page "));
}

TEST(HtmlPrintEngine, ALongPageFillsSeveralPdfPagesAndWiderMarginsMore) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    QString body;
    for (int i = 0; i < 200; ++i) body += QStringLiteral("<p>Paragraph %1 of a long help page.</p>").arg(i);
    const QString page = dir.filePath("long.htm");
    QFile out(page);
    ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    out.write(("<html><body><h1>Long</h1>" + body + "</body></html>").toUtf8());
    out.close();

    HelpPrintJob job;
    job.page = page.toStdString();
    job.baseFolder = dir.path().toStdString() + "/";
    job.marginLeft = job.marginRight = job.marginTop = job.marginBottom = 1440;
    job.heading = "Quorvel: Long";
    job.footer = "{newline}{line}{Left}left{Right}{PageNum}";
    job.footerSize = 8;

    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(dir.filePath("long.pdf"));
    const int pages = HtmlPrintEngine::render(printer, job);
    EXPECT_GT(pages, 2);
    EXPECT_EQ(pagesOf(dir.filePath("long.pdf")), pages);
    EXPECT_EQ(printer.pageLayout().margins(QPageLayout::Point), QMarginsF(72, 72, 72, 72));

    // Wider margins leave less room: more pages for the same text.
    job.marginTop = job.marginBottom = 2880;
    QPrinter narrow(QPrinter::HighResolution);
    narrow.setOutputFormat(QPrinter::PdfFormat);
    narrow.setOutputFileName(dir.filePath("narrow.pdf"));
    EXPECT_GT(HtmlPrintEngine::render(narrow, job), pages);

    EXPECT_EQ(HtmlPrintEngine::pdfPathFor(page.toStdString()), dir.filePath("long.pdf"));
}

}  // namespace
}  // namespace qv
