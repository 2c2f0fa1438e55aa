#pragma once
// The host's own setting of whether the getting started tour shows when
// the program starts, kept in QuorvelHost.ini in the program's folder.

#include <string>

#include "help/TourPreference.h"

namespace qv {

class HostTour : public TourPreference {
public:
    explicit HostTour(std::string folder) : folder_(std::move(folder)) {}

    [[nodiscard]] bool showTourAtStart() const override;
    void setShowTourAtStart(bool show) override;

private:
    std::string folder_;
};

}  // namespace qv
