#pragma once
// A file that can't be read or imported: one sentence naming the file and
// the line. Raised before anything is written, so the store stays as it was.

#include <stdexcept>
#include <string>

#include "toolkit/TextFill.h"
#include "toolkit/Translate.h"

namespace qv {

class InteropError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;

    // "FILE, line N: what"
    static InteropError at(const std::string& file, int line, const std::string& what) {
        return InteropError(fill(tr("%1, line %2: %3"), {file, std::to_string(line), what}));
    }
};

}  // namespace qv
