#pragma once
// The fonts port: the names of the screen fonts.

#include <string>
#include <vector>

#include "Export.h"

namespace qv {

class QV_EXPORT FontList {
public:
    virtual ~FontList() = default;
    [[nodiscard]] virtual std::vector<std::string> fontNames() const = 0;
};

}  // namespace qv
