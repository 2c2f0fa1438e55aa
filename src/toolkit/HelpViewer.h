#pragma once
// The help port: opens a help page by its topic number. No viewer
// installed means no help is shown.

#include <cstdint>
#include <string>

#include "Export.h"

namespace qv {

class QV_EXPORT HelpViewer {
public:
    virtual ~HelpViewer() = default;
    virtual void openHelpPop(int32_t topic, const std::string& printSetting) = 0;
};

}  // namespace qv
