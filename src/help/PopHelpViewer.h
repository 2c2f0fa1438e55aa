#pragma once
// The help port as the dialogs reach it: each openHelpPop makes a help
// pop-up, hands it the print settings, sets it up on the topic and shows
// it modally over the dialog that asked, until the user closes it.

#include <cstdint>
#include <memory>
#include <string>

#include "Export.h"
#include "toolkit/HelpViewer.h"

namespace qv {

class HelpPrinter;
class TourPreference;
class frmPopHelp;

class QV_EXPORT PopHelpViewer : public HelpViewer {
public:
    explicit PopHelpViewer(HelpPrinter* printer = nullptr, TourPreference* tour = nullptr);
    ~PopHelpViewer() override;

    void openHelpPop(int32_t topic, const std::string& printSetting) override;

    // The pop-up shown now, or nullptr; and the topic last asked for.
    [[nodiscard]] frmPopHelp* shown() const { return shown_.get(); }
    [[nodiscard]] int32_t lastTopic() const { return lastTopic_; }
    void setPrinter(HelpPrinter* printer) { printer_ = printer; }
    void setTour(TourPreference* tour) { tour_ = tour; }

private:
    HelpPrinter* printer_;
    TourPreference* tour_;
    std::shared_ptr<frmPopHelp> shown_;
    int32_t lastTopic_ = -1;
};

}  // namespace qv
