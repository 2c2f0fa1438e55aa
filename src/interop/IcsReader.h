#pragma once
// Reads a calendar file into an ImportSet, checking every value it takes.
// Throws InteropError naming the file and the line of the first fault.

#include "interop/ImportSet.h"

namespace qv {

class IcsSource;

class IcsReader {
public:
    [[nodiscard]] static ImportSet read(const IcsSource& source);
};

}  // namespace qv
