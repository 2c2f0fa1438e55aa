#include "help/SurfaceHelpPrinter.h"

#include "toolkit/Ports.h"
#include "toolkit/PrintSurface.h"

namespace qv {

PrintJob SurfaceHelpPrinter::toPrintJob(const HelpPrintJob& job) {
    PrintJob p;
    p.header = job.heading;
    p.footer = job.footer;
    p.footerFont = job.footerFont;
    p.footerSize = job.footerSize;
    p.marginLeft = job.marginLeft;
    p.marginRight = job.marginRight;
    p.marginTop = job.marginTop;
    p.marginBottom = job.marginBottom;
    p.file = job.page;
    return p;
}

void SurfaceHelpPrinter::print(const HelpPrintJob& job) {
    if (PrintSurface* surface = ports().print) surface->print(toPrintJob(job));
}

void SurfaceHelpPrinter::preview(const HelpPrintJob& job) {
    if (PrintSurface* surface = ports().print) surface->preview(toPrintJob(job));
}

}  // namespace qv
