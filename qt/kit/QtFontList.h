#pragma once
// The fonts port from the font database.

#include "Export.h"
#include "toolkit/FontList.h"

namespace qv {

class QV_EXPORT QtFontList : public FontList {
public:
    [[nodiscard]] std::vector<std::string> fontNames() const override;
};

}  // namespace qv
