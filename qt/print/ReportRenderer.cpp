#include "print/ReportRenderer.h"

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QFontMetricsF>
#include <QPainter>
#include <QPrinter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <QUrl>

#include "kit/QtText.h"
#include "print/PageCuts.h"
#include "print/PagePainter.h"
#include "toolkit/Failure.h"

namespace qv {

namespace {
constexpr double kTwipsPerPoint = 20.0;

// The report gives colours as plain numbers, which the rich-text parser
// warns of once per cell; they are the report's own and not news.
QtMessageHandler previousHandler = nullptr;
void quietColours(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (message.startsWith("QTextHtmlParser::applyAttributes: Unknown color name")) return;
    if (previousHandler) previousHandler(type, context, message);
}
constexpr int kLinesOfFooter = 3;  // room kept for the usual footer
}  // namespace

ReportRenderer::ReportRenderer(const PrintJob& job) : job_(job), doc_(std::make_unique<QTextDocument>()) {
    QFile file(QString::fromStdString(job.file));
    if (!file.open(QIODevice::ReadOnly))
        throw Failure(err::FileNotFound,
                      qtr("File not found: %1").arg(QString::fromStdString(job.file)).toStdString());
    previousHandler = qInstallMessageHandler(quietColours);
    // Style sheets and pictures named relative to the page (help pages).
    doc_->setBaseUrl(QUrl::fromLocalFile(QString::fromStdString(job.file)));
    doc_->setHtml(QString::fromUtf8(file.readAll()));
    qInstallMessageHandler(previousHandler);
}

ReportRenderer::~ReportRenderer() = default;

void ReportRenderer::applyMargins(QPrinter& printer) const {
    printer.setPageMargins(
        QMarginsF(job_.marginLeft, job_.marginTop, job_.marginRight, job_.marginBottom) / kTwipsPerPoint,
        QPageLayout::Point);
}

QFont ReportRenderer::footerFont(QPrinter& printer) const {
    QFont f(QString::fromStdString(job_.footerFont));
    f.setPointSizeF(job_.footerSize > 0 ? job_.footerSize : 8);
    return QFont(f, &printer);
}

void ReportRenderer::layout(QPrinter& printer) {
    font_ = footerFont(printer);
    lineHeight_ = QFontMetricsF(font_, &printer).lineSpacing();
    const auto lines = FooterFormat::lines(job_.footer, 1);
    const double footer = lineHeight_ * std::max<std::size_t>(lines.size(), kLinesOfFooter - 1) + lineHeight_;
    page_ = QRectF(QPointF(0, 0), printer.pageLayout().paintRectPixels(printer.resolution()).size());
    body_ = QRectF(0, 0, page_.width(), std::max(page_.height() - footer, page_.height() / 2));
    if (laidOutFor(printer)) return;
    // Laid out as one long page, then cut between rows and lines.
    layOutOnce(printer, body_.width());
    pages_ = std::make_unique<PagePainter>(*doc_, printer.logicalDpiY());
    tops_ = PageCuts::cuts(PageCuts::keepTogether(*doc_, pages_->rows()), doc_->size().height(), body_.height());
}

// The document's layout lays the whole text out as it is made and again at
// every change of width; with no page size it waits, so the text is laid
// out once, for the printer's metrics and the body's width. The glyphs
// shaped to break the lines are kept for painting, which would otherwise
// shape every line again.
void ReportRenderer::layOutOnce(QPrinter& printer, double width) {
    doc_->setPageSize(QSizeF(0, 0));
    for (QTextBlock block = doc_->begin(); block.isValid(); block = block.next())
        block.layout()->setCacheEnabled(true);
    doc_->documentLayout()->setPaintDevice(&printer);
    doc_->setTextWidth(width);
    laidOut_ = {&printer, printer.resolution(), body_.size()};
}

// A preview repaints on every change of zoom: the same printer and page
// need no new layout.
bool ReportRenderer::laidOutFor(QPrinter& printer) const {
    return laidOut_.printer == &printer && laidOut_.resolution == printer.resolution() &&
           laidOut_.body == body_.size();
}

void ReportRenderer::render(QPrinter& printer) {
    layout(printer);
    QPainter painter(&printer);
    const int pages = pageCount();
    for (int i = 0; i < pages; ++i) {
        if (i > 0) printer.newPage();
        painter.save();
        const QRectF view(0, tops_[i], body_.width(), tops_[i + 1] - tops_[i]);
        painter.setClipRect(view.translated(0, -view.top()));
        pages_->paint(painter, view);
        painter.restore();
        paintFooter(painter, i + 1);
    }
}

// The footer's lines sit at the foot of the page, each rule above its text.
void ReportRenderer::paintFooter(QPainter& painter, int page) const {
    const auto lines = FooterFormat::lines(job_.footer, page);
    painter.save();
    painter.setFont(font_);
    double y = page_.height() - lineHeight_ * static_cast<double>(lines.size());
    for (const auto& line : lines) {
        if (line.rule) {
            painter.setPen(QPen(Qt::black, std::max(1.0, lineHeight_ / 16)));
            painter.drawLine(QPointF(0, y), QPointF(page_.width(), y));
        }
        const QRectF row(0, y, page_.width(), lineHeight_);
        painter.drawText(row, Qt::AlignLeft | Qt::AlignVCenter, QString::fromStdString(line.left));
        painter.drawText(row, Qt::AlignRight | Qt::AlignVCenter, QString::fromStdString(line.right));
        y += lineHeight_;
    }
    painter.restore();
}

}  // namespace qv
