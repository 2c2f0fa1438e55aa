#pragma once
// Where the help pop-up sends a page to print: the program's print engine
// (SurfaceHelpPrinter), or a test's recorder.

#include <cstdint>
#include <string>

#include "Export.h"

namespace qv {

// A help page laid out for printing, as the print settings string says.
struct QV_EXPORT HelpPrintJob {
    std::string page;        // the HTML file
    std::string baseFolder;  // relative paths inside the page resolve here
    std::string printer;
    int32_t copies = 1;
    std::string paper;  // "Portrait" or "Landscape"
    // Margins in twips.
    int32_t marginLeft = 0, marginRight = 0, marginTop = 0, marginBottom = 0;
    std::string heading;
    std::string headingFont;
    int32_t headingSize = 0;
    int32_t headingColor = 0;
    // "{newline}{line}{Left}left text{Right}right text", "{PageNum}" inside.
    std::string footer;
    std::string footerFont;
    int32_t footerSize = 0;
    int32_t footerColor = 0;
};

class QV_EXPORT HelpPrinter {
public:
    virtual ~HelpPrinter() = default;
    // Prints the page. With no printer installed the engine puts it in a
    // PDF file instead and tells the user where.
    virtual void print(const HelpPrintJob& job) = 0;
    // Shows the page as it would print, until the user closes the preview.
    virtual void preview(const HelpPrintJob& job) = 0;
};

}  // namespace qv
