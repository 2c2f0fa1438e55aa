#pragma once
// The desktop print engine: a report printed on the default printer, or,
// where no printer is installed, into a PDF beside the report file (the
// user is told where); a real print preview window.

#include <functional>
#include <string>

#include "Export.h"
#include "toolkit/PrintSurface.h"

class QPrintPreviewDialog;

namespace qv {

class QV_EXPORT QtPrintSurface : public PrintSurface {
public:
    struct Options {
        bool usePrinters = true;  // false: always a PDF
        bool tellPdf = true;      // tell the user where the PDF went
        bool showPreview = true;  // false: a preview makes the PDF instead, quietly
    };
    QtPrintSurface() = default;
    explicit QtPrintSurface(Options options) : options_(options) {}

    void print(const PrintJob& job) override;
    void preview(const PrintJob& job) override;

    // Where a report's PDF goes: beside it, with the extension ".pdf".
    [[nodiscard]] static std::string pdfPathFor(const std::string& reportFile);
    // The last PDF written ("" if the last job went to a printer) and its pages.
    [[nodiscard]] const std::string& lastPdf() const { return lastPdf_; }
    [[nodiscard]] int lastPageCount() const { return lastPages_; }
    // Called with the preview window once it is built (tests, screenshots).
    void setPreviewShown(std::function<void(QPrintPreviewDialog&)> fn) { previewShown_ = std::move(fn); }

private:
    void toPdf(const PrintJob& job, bool tell);

    Options options_;
    std::string lastPdf_;
    int lastPages_ = 0;
    std::function<void(QPrintPreviewDialog&)> previewShown_;
};

}  // namespace qv
