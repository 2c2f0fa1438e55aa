#pragma once
// The print engine port: it reads a report file and prints it, or shows it
// in a preview, with a header and footer and the page margins. Header and
// footer texts may hold the markers {newline}, {line}, {Left}, {Right} and
// {PageNum}.

#include <cstdint>
#include <string>

#include "Export.h"

namespace qv {

struct QV_EXPORT PrintJob {
    std::string header;
    std::string footer;
    std::string footerFont;
    int32_t footerSize = 0;
    // Twips, in the order the dialogs set them.
    int32_t marginLeft = 0, marginRight = 0, marginTop = 0, marginBottom = 0;
    // The report file to load.
    std::string file;
};

class QV_EXPORT PrintSurface {
public:
    virtual ~PrintSurface() = default;
    virtual void print(const PrintJob& job) = 0;
    virtual void preview(const PrintJob& job) = 0;
};

}  // namespace qv
