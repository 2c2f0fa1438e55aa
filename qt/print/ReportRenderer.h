#pragma once
// Lays a report file out on the pages of a printer and paints it: the
// body within the margins above a footer band, the footer on every page
// with its page number. Table rows are never cut between pages: a row that
// does not fit goes to the next page whole.

#include <QFont>
#include <QRectF>
#include <QString>
#include <memory>
#include <vector>

#include "reports/FooterFormat.h"
#include "toolkit/PrintSurface.h"

class QPrinter;
class QPainter;
class QTextDocument;

namespace qv {

class PagePainter;

class ReportRenderer {
public:
    // Reads the job's file; throws Failure when it can't be read.
    explicit ReportRenderer(const PrintJob& job);
    ~ReportRenderer();

    // The page margins of the job, in points.
    void applyMargins(QPrinter& printer) const;
    // Lays the document out for the printer's pages.
    void layout(QPrinter& printer);
    // Lays out and paints every page.
    void render(QPrinter& printer);

    [[nodiscard]] int pageCount() const { return static_cast<int>(tops_.size()) - 1; }
    // The top of each page in the document, and last its end.
    [[nodiscard]] const std::vector<double>& pageTops() const { return tops_; }
    [[nodiscard]] QTextDocument& document() const { return *doc_; }
    // The body of a page, in the printer's device pixels; pages end
    // higher where a row or line would be cut.
    [[nodiscard]] QRectF body() const { return body_; }

private:
    void layOutOnce(QPrinter& printer, double width);
    [[nodiscard]] bool laidOutFor(QPrinter& printer) const;
    void paintFooter(QPainter& painter, int page) const;
    [[nodiscard]] QFont footerFont(QPrinter& printer) const;

    PrintJob job_;
    std::unique_ptr<QTextDocument> doc_;
    std::unique_ptr<PagePainter> pages_;
    QRectF page_;
    QRectF body_;
    QFont font_;
    double lineHeight_ = 0;
    std::vector<double> tops_{0.0, 0.0};
    struct LaidOut {
        const QPrinter* printer = nullptr;
        int resolution = 0;
        QSizeF body;
    } laidOut_;
};

}  // namespace qv
