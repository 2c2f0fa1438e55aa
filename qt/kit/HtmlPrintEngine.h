#pragma once
// Prints an HTML file through Qt's rich-text engine: on the named printer
// (or the default one), or into a PDF beside the file when the machine has
// no printer; and a print preview window. The heading stands at the top of
// every page and the footer, with its markers, at the bottom.

#include <QString>

#include "help/HelpPrinter.h"

class QPrinter;
class QWidget;

namespace qv {

class HtmlPrintEngine : public HelpPrinter {
public:
    std::string print(const HelpPrintJob& job) override;
    void preview(const HelpPrintJob& job) override;

    // Lays the job out on the printer and paints every page; the number of
    // pages painted. Used by print, by the preview and by tests.
    static int render(QPrinter& printer, const HelpPrintJob& job);
    // Where the PDF of a file goes when there is no printer.
    [[nodiscard]] static QString pdfPathFor(const std::string& file);

private:
    // Chooses the printer, or a PDF file when none is installed; true for a PDF.
    static bool choosePrinter(QPrinter& printer, const HelpPrintJob& job);
};

}  // namespace qv
