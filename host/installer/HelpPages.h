#pragma once
// The help pages in the program's folder: on first run, and whenever one
// is missing, the shipped pages are copied into its help/ folder. A page
// that stands there already is kept, whatever it holds.

#include <string>

namespace qv {

// Copies every file under source that folder/help lacks; the number copied.
// A source that doesn't exist copies nothing. Throws Failure when a page
// can't be written.
int installHelpPages(const std::string& folder, const std::string& source);

// Where the pages ship: share/quorvel/help beside the installed program,
// else the pages of the source tree it was built from.
std::string helpPagesSource();

}  // namespace qv
