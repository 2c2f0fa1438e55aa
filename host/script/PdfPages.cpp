#include "script/PdfPages.h"

#include <memory>

#include <poppler-document.h>
#include <poppler-global.h>

namespace qv {

int pdfPageCount(const std::string& path) {
    // A file that is no PDF is told by the -1, not by poppler on stderr.
    poppler::set_debug_error_function([](const std::string&, void*) {}, nullptr);
    const std::unique_ptr<poppler::document> pdf(poppler::document::load_from_file(path));
    if (!pdf || pdf->is_locked()) return -1;
    return pdf->pages();
}

}  // namespace qv
