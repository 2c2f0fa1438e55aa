#pragma once
// Where the pages of a laid-out document end: as far down as a page
// reaches, but never inside a line of text or a table row. A row or line
// taller than a page is cut where the page ends.

#include <map>
#include <vector>

class QTextDocument;
class QTextTable;

namespace qv {

class PageCuts {
public:
    struct Span {
        double top;
        double bottom;
    };
    // The extent of each row's text in tables whose rows are known already.
    using TableRows = std::map<const QTextTable*, std::vector<Span>>;
    // The spans that must not be cut, from a document laid out without pages.
    [[nodiscard]] static std::vector<Span> keepTogether(QTextDocument& doc, const TableRows& known = {});
    // The top of every page and, last, the end of the document.
    [[nodiscard]] static std::vector<double> cuts(std::vector<Span> spans, double documentHeight,
                                                  double pageHeight);
};

}  // namespace qv
