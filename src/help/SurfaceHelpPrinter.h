#pragma once
// Help pages print through the program's one print engine, the same that
// prints the task reports: the page file with the help print string's
// margins and footer. The engine tells the user where a PDF went.

#include "Export.h"
#include "help/HelpPrinter.h"

namespace qv {

struct PrintJob;

class QV_EXPORT SurfaceHelpPrinter : public HelpPrinter {
public:
    void print(const HelpPrintJob& job) override;
    void preview(const HelpPrintJob& job) override;

    [[nodiscard]] static PrintJob toPrintJob(const HelpPrintJob& job);
};

}  // namespace qv
