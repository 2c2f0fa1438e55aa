#include "kit/HtmlPrintEngine.h"

#include <algorithm>

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTextDocument>
#include <QUrl>

#include "kit/PageFooter.h"

namespace qv {

namespace {

constexpr double kTwipsPerPoint = 20.0;

QString qs(const std::string& s) { return QString::fromStdString(s); }

// A colour as the settings keep it: red in the low byte.
QColor colorOf(int32_t c) { return QColor(c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF); }

QFont fontOf(const std::string& family, int32_t size, int fallbackSize) {
    QFont f = QApplication::font();
    if (!family.empty()) f.setFamily(qs(family));
    f.setPointSize(size > 0 ? size : fallbackSize);
    return f;
}

QString readPage(const std::string& path) {
    QFile file(qs(path));
    if (!file.open(QIODevice::ReadOnly)) return {};
    return QString::fromUtf8(file.readAll());
}

void applyLayout(QPrinter& printer, const HelpPrintJob& job) {
    printer.setCopyCount(std::max(1, job.copies));
    const QString paper = qs(job.paper).toUpper();
    if (paper == QStringLiteral("LANDSCAPE")) printer.setPageOrientation(QPageLayout::Landscape);
    if (paper == QStringLiteral("PORTRAIT")) printer.setPageOrientation(QPageLayout::Portrait);
    printer.setPageMargins(QMarginsF(job.marginLeft / kTwipsPerPoint, job.marginTop / kTwipsPerPoint,
                                     job.marginRight / kTwipsPerPoint, job.marginBottom / kTwipsPerPoint),
                           QPageLayout::Point);
}

struct Band {
    QFont font;
    QColor color;
    double lineHeight = 0;
    double height = 0;
};

Band headingBand(QPrinter& printer, const HelpPrintJob& job) {
    Band b{fontOf(job.headingFont, job.headingSize, 14), colorOf(job.headingColor)};
    b.lineHeight = QFontMetricsF(b.font, &printer).height();
    b.height = job.heading.empty() ? 0 : b.lineHeight * 1.6;
    return b;
}

Band footerBand(QPrinter& printer, const HelpPrintJob& job, const PageFooter& footer) {
    Band b{fontOf(job.footerFont, job.footerSize, 9), colorOf(job.footerColor)};
    b.lineHeight = QFontMetricsF(b.font, &printer).height();
    b.height = footer.empty() ? 0 : b.lineHeight * (footer.blankLines() + 1.3);
    return b;
}

void paintFooter(QPainter& p, const PageFooter& footer, const Band& band, const QRectF& area, int page) {
    p.setFont(band.font);
    p.setPen(band.color);
    const double textTop = area.bottom() - band.lineHeight;
    if (footer.rule()) p.drawLine(QPointF(area.left(), textTop - band.lineHeight * 0.15), QPointF(area.right(), textTop - band.lineHeight * 0.15));
    const QRectF line(area.left(), textTop, area.width(), band.lineHeight);
    p.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, footer.left(page));
    p.drawText(line, Qt::AlignRight | Qt::AlignVCenter, footer.right(page));
}

}  // namespace

int HtmlPrintEngine::render(QPrinter& printer, const HelpPrintJob& job) {
    applyLayout(printer, job);
    QTextDocument doc;
    doc.setBaseUrl(QUrl::fromLocalFile(qs(job.baseFolder)));
    doc.documentLayout()->setPaintDevice(&printer);
    doc.setDefaultFont(fontOf({}, 10, 10));
    doc.setHtml(readPage(job.page));

    const PageFooter footer(qs(job.footer));
    const Band head = headingBand(printer, job);
    const Band foot = footerBand(printer, job, footer);
    const QRectF paper(QPointF(0, 0), printer.pageRect(QPrinter::DevicePixel).size());
    const QRectF body(0, head.height, paper.width(), std::max(1.0, paper.height() - head.height - foot.height));
    doc.setPageSize(body.size());

    QPainter p;
    if (!p.begin(&printer)) return 0;
    const int pages = std::max(1, doc.pageCount());
    for (int i = 0; i < pages; ++i) {
        if (i > 0) printer.newPage();
        if (!job.heading.empty()) {
            p.setFont(head.font);
            p.setPen(head.color);
            p.drawText(QRectF(0, 0, paper.width(), head.lineHeight), Qt::AlignLeft | Qt::AlignVCenter, qs(job.heading));
        }
        p.save();
        p.translate(body.left(), body.top() - i * body.height());
        QAbstractTextDocumentLayout::PaintContext ctx;
        ctx.clip = QRectF(0, i * body.height(), body.width(), body.height());
        p.setClipRect(ctx.clip);
        doc.documentLayout()->draw(&p, ctx);
        p.restore();
        if (!footer.empty()) paintFooter(p, footer, foot, paper, i + 1);
    }
    p.end();
    return pages;
}

QString HtmlPrintEngine::pdfPathFor(const std::string& file) {
    const QFileInfo info(qs(file));
    return info.path() + QLatin1Char('/') + info.completeBaseName() + QStringLiteral(".pdf");
}

bool HtmlPrintEngine::choosePrinter(QPrinter& printer, const HelpPrintJob& job) {
    const auto printers = QPrinterInfo::availablePrinters();
    if (printers.isEmpty()) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(pdfPathFor(job.page));
        return true;
    }
    QPrinterInfo chosen = QPrinterInfo::printerInfo(qs(job.printer));
    if (chosen.isNull()) chosen = QPrinterInfo::defaultPrinter();
    if (chosen.isNull()) chosen = printers.first();
    printer.setPrinterName(chosen.printerName());
    return false;
}

std::string HtmlPrintEngine::print(const HelpPrintJob& job) {
    QPrinter printer(QPrinter::HighResolution);
    const bool pdf = choosePrinter(printer, job);
    render(printer, job);
    return pdf ? printer.outputFileName().toStdString() : std::string();
}

void HtmlPrintEngine::preview(const HelpPrintJob& job) {
    QPrinter printer(QPrinter::HighResolution);
    choosePrinter(printer, job);
    QPrintPreviewDialog dialog(&printer, QApplication::activeWindow());
    dialog.setObjectName(QStringLiteral("helpPreview"));
    dialog.setWindowTitle(qs(job.heading));
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog, [&job](QPrinter* p) { render(*p, job); });
    dialog.exec();
}

}  // namespace qv
