// A page painted with the plain tables drawn here must come out pixel for
// pixel as the document paints it: the report's schedule with its grey
// heading row and a column too narrow for its text, tables between
// paragraphs, and tables left to the document (spans, paragraphs in a
// cell, a table within a cell, thick borders).

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QPainter>
#include <QTextDocument>
#include <gtest/gtest.h>
#include <string>

#include "print/PagePainter.h"

namespace qv {

namespace {

constexpr double kDotsPerInch = 300;

std::string scheduleRows(int rows) {
    std::string html;
    for (int r = 0; r < rows; ++r)
        html += "<tr><td width=\"30%\" align=\"center\" bgcolor=\"#FFFFFF\"><font face=\"Arial\" size=\"2\">3/" +
                std::to_string(1 + r % 28) +
                "/2026 9:00:00 AM</font></td><td width=\"20%\" align=\"right\" bgcolor=\"#FFFFFF\">0:30</td>"
                "<td width=\"60%\" align=\"left\" bgcolor=\"#FFFFFF\">" +
                std::string(r % 3 ? "True" : "a note long enough to wrap in its column") +
                "</td><td width=\"20%\">0:" + std::to_string(10 + r % 50) + "</td></tr>";
    return html;
}

std::string schedule(int rows, const char* border = "1") {
    return std::string("<table WIDTH=\"100%\" cellpadding=\"4\" cellspacing=\"4\" border=\"") + border +
           "\"><tr BGCOLOR=\"#C0C0C0\"><td><b>Start</b></td><td><b>Duration</b></td><td><b>Notes</b></td>"
           "<td><b>Time Spent</b></td></tr>" +
           scheduleRows(rows) + "</table>";
}

struct Case {
    const char* name;
    std::string html;
    std::size_t ownTables;
};

const Case kCases[] = {
    {"the report's schedule", "<h2>Schedule:</h2>" + schedule(60), 1},
    {"tables between paragraphs",
     "<h1>Report</h1><p>before</p>" + schedule(12) + "<p>between</p>" + schedule(25) + "<p>after</p>", 2},
    {"a cell spanning columns",
     "<table border=1 cellpadding=4><tr><td colspan=2>both</td></tr>" + scheduleRows(30) + "</table>", 0},
    {"paragraphs in a cell",
     "<table border=1><tr><td><p>one</p><p>two</p></td><td>x</td></tr><tr><td>y</td><td>z</td></tr></table>", 0},
    {"thick borders", schedule(20, "3"), 1},
    {"no border, narrower and centred",
     "<table width=\"50%\" align=center cellpadding=3>" + scheduleRows(25) + "</table>", 1},
    {"a table with a background", "<table border=1 bgcolor=\"#FFFF00\">" + scheduleRows(25) + "</table>", 0},
    {"a table within a cell", "<table border=1><tr><td>outer</td><td>" + schedule(20) + "</td></tr></table>", 0},
};

// The document laid out as for a printer, on one long page.
void layOut(QTextDocument& doc, QImage& device) {
    doc.setPageSize(QSizeF(0, 0));
    doc.documentLayout()->setPaintDevice(&device);
    doc.setTextWidth(device.width());
}

QImage blank(const QImage& device, double height) {
    QImage image(device.width(), static_cast<int>(height), QImage::Format_RGB32);
    image.setDotsPerMeterX(device.dotsPerMeterX());
    image.setDotsPerMeterY(device.dotsPerMeterY());
    image.fill(Qt::white);
    return image;
}

}  // namespace

TEST(PagePainter, PaintsEveryPageAsTheDocumentDoes) {
    for (const Case& c : kCases) {
        SCOPED_TRACE(c.name);
        QImage device(static_cast<int>(6.5 * kDotsPerInch), 10, QImage::Format_RGB32);
        device.setDotsPerMeterX(static_cast<int>(kDotsPerInch / 0.0254));
        device.setDotsPerMeterY(static_cast<int>(kDotsPerInch / 0.0254));
        QTextDocument doc;
        doc.setHtml(QString::fromStdString(c.html));
        layOut(doc, device);
        const PagePainter pages(doc, device.logicalDpiY());
        EXPECT_EQ(pages.ownTables(), c.ownTables);

        // Pages cut anywhere, through rows too: the clip hides what is cut.
        const double height = doc.size().height();
        const double page = height / 3.3;
        for (double top = 0; top < height; top += page) {
            const QRectF view(0, top, device.width(), std::min(page, height - top));
            QImage expected = blank(device, view.height());
            {
                QPainter painter(&expected);
                painter.translate(0, -view.top());
                painter.setClipRect(view);
                QAbstractTextDocumentLayout::PaintContext ctx;
                ctx.clip = view;
                doc.documentLayout()->draw(&painter, ctx);
            }
            QImage painted = blank(device, view.height());
            {
                QPainter painter(&painted);
                painter.setClipRect(view.translated(0, -view.top()));
                pages.paint(painter, view);
            }
            EXPECT_TRUE(painted == expected) << "page from " << top;
        }
    }
}

}  // namespace qv
