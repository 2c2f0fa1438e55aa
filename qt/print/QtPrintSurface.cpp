#include "print/QtPrintSurface.h"

#include <QApplication>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTimer>

#include "kit/QtText.h"
#include "print/ReportRenderer.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/Ports.h"
#include "toolkit/Ui.h"

namespace qv {

std::string QtPrintSurface::pdfPathFor(const std::string& reportFile) {
    const auto dot = reportFile.find_last_of('.');
    const auto slash = reportFile.find_last_of('/');
    const bool hasExtension = dot != std::string::npos && (slash == std::string::npos || dot > slash);
    return (hasExtension ? reportFile.substr(0, dot) : reportFile) + ".pdf";
}

void QtPrintSurface::print(const PrintJob& job) {
    if (!options_.usePrinters || QPrinterInfo::availablePrinterNames().isEmpty())
        return toPdf(job, options_.tellPdf);
    ReportRenderer report(job);
    QPrinter printer(QPrinter::HighResolution);
    report.applyMargins(printer);
    report.render(printer);
    lastPdf_.clear();
    lastPages_ = report.pageCount();
}

void QtPrintSurface::toPdf(const PrintJob& job, bool tell) {
    ReportRenderer report(job);
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    const std::string pdf = pdfPathFor(job.file);
    printer.setOutputFileName(QString::fromStdString(pdf));
    printer.setDocName(QString::fromStdString(kProgramTitle));
    report.applyMargins(printer);
    report.render(printer);
    lastPdf_ = pdf;
    lastPages_ = report.pageCount();
    if (tell)
        ui().msgBox(tr("No printer is installed, so the report was saved as a PDF file:") + "\n" + pdf,
                    vbInformation, kProgramTitle);
}

void QtPrintSurface::preview(const PrintJob& job) {
    if (!options_.showPreview) return toPdf(job, false);
    ReportRenderer report(job);
    QPrinter printer(QPrinter::HighResolution);
    report.applyMargins(printer);
    QPrintPreviewDialog dialog(&printer, QApplication::activeModalWidget());
    dialog.setObjectName("printPreview");
    dialog.setWindowTitle(qtr("%1 - Print Preview").arg(kProgramTitle));
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog, [&report, this](QPrinter* p) {
        report.render(*p);
        lastPages_ = report.pageCount();
    });
    if (previewShown_) QTimer::singleShot(0, &dialog, [this, &dialog] { previewShown_(dialog); });
    lastPdf_.clear();
    dialog.exec();
}

}  // namespace qv
