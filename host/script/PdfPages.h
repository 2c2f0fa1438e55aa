#pragma once
// The number of pages of a PDF file, as poppler reads it; -1 when
// the file can't be read.

#include <string>

namespace qv {

[[nodiscard]] int pdfPageCount(const std::string& path);

}  // namespace qv
