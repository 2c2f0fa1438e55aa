// Where pages end in tables whose rows are more than one line of text:
// cells of several paragraphs, a cell spanning rows, a table within a
// cell. No cut may fall inside a row that fits on a page.

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>
#include <gtest/gtest.h>
#include <map>

#include "print/PageCuts.h"

namespace qv {

namespace {

struct Extent {
    double top = 1e18;
    double bottom = -1e18;
};

QTextTable* innermostTable(QTextDocument& doc, int position) {
    for (QTextFrame* frame = doc.frameAt(position); frame; frame = frame->parentFrame())
        if (auto* table = qobject_cast<QTextTable*>(frame)) return table;
    return nullptr;
}

// Each row's extent, from the blocks of the cells that start in it; a
// table within a cell has rows of its own.
std::map<std::pair<QTextTable*, int>, Extent> rowExtents(QTextDocument& doc) {
    std::map<std::pair<QTextTable*, int>, Extent> rows;
    auto* layout = doc.documentLayout();
    for (QTextBlock block = doc.begin(); block.isValid(); block = block.next()) {
        QTextTable* table = innermostTable(doc, block.position());
        if (!table) continue;
        const QRectF rect = layout->blockBoundingRect(block);
        Extent& e = rows[{table, table->cellAt(block.position()).row()}];
        e.top = std::min(e.top, rect.top());
        e.bottom = std::max(e.bottom, rect.bottom());
    }
    return rows;
}

std::string rowsOf(int rows, const std::string& cell) {
    std::string html;
    for (int r = 0; r < rows; ++r) html += "<tr><td>" + std::to_string(r) + "</td><td>" + cell + "</td></tr>";
    return html;
}

std::string manyRows(int rows, const std::string& cell) {
    return "<table border=1 cellspacing=2>" + rowsOf(rows, cell) + "</table>";
}

struct Case {
    const char* name;
    std::string html;
};

const Case kCases[] = {
    {"paragraphs in a cell", manyRows(40, "<p>one</p><p>two</p><p>three</p>")},
    {"a cell spanning rows",
     "<table border=1><tr><td rowspan=3><p>a</p><p>b</p><p>c</p><p>d</p><p>e</p><p>f</p></td><td>1</td></tr>"
     "<tr><td>2</td></tr><tr><td>3</td></tr>" +
         manyRows(30, "<p>x</p><p>y</p>").substr(25)},
    {"a table within a cell",
     "<table border=1><tr><td>outer</td><td>" + manyRows(30, "<p>in</p><p>side</p>") +
         "</td></tr><tr><td>after</td><td><p>last</p><p>row</p></td></tr></table>"},
};

}  // namespace

TEST(PageCuts, NoCutFallsInsideARowThatFitsOnAPage) {
    for (const Case& c : kCases) {
        SCOPED_TRACE(c.name);
        QTextDocument doc;
        doc.setHtml(QString::fromStdString(c.html));
        doc.setTextWidth(300);
        const double height = doc.size().height();
        const double page = height / 7;
        const auto tops = PageCuts::cuts(PageCuts::keepTogether(doc), height, page);
        ASSERT_GT(tops.size(), 4u);
        int checked = 0;
        for (const auto& [key, e] : rowExtents(doc)) {
            if (e.bottom - e.top >= page) continue;
            ++checked;
            for (double cut : tops)
                EXPECT_FALSE(cut > e.top + 0.01 && cut < e.bottom - 0.01)
                    << "row " << key.second << " [" << e.top << ", " << e.bottom << "] cut at " << cut;
        }
        EXPECT_GT(checked, 20);
    }
}

}  // namespace qv
