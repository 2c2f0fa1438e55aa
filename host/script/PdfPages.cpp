#include "script/PdfPages.h"

#include <fstream>
#include <iterator>

namespace qv {

int pdfPageCount(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) return -1;
    const std::string pdf{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    const std::string marker = "/Type /Page";
    int pages = 0;
    for (auto at = pdf.find(marker); at != std::string::npos; at = pdf.find(marker, at + marker.size())) {
        const std::size_t next = at + marker.size();
        // "/Type /Pages" is the page tree, not a page.
        if (next < pdf.size() && pdf[next] == 's') continue;
        ++pages;
    }
    return pages;
}

}  // namespace qv
