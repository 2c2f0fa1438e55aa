#pragma once
// The fonts port from the font database.

#include "toolkit/FontList.h"

namespace qv {

class QtFontList : public FontList {
public:
    [[nodiscard]] std::vector<std::string> fontNames() const override;
};

}  // namespace qv
