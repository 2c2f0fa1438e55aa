#include "help/PopHelpViewer.h"

#include "help/frmPopHelp.h"
#include "store/ErrorPath.h"

namespace qv {

namespace {

// The dialog whose help tool was pressed: the newest one on screen.
Form* topmostShown() {
    Form* top = nullptr;
    for (const auto& f : Form::openForms())
        if (f->visible()) top = f.get();
    return top;
}

}  // namespace

PopHelpViewer::PopHelpViewer(HelpPrinter* printer, TourPreference* tour) : printer_(printer), tour_(tour) {}

PopHelpViewer::~PopHelpViewer() = default;

void PopHelpViewer::openHelpPop(int32_t topic, const std::string& printSetting) {
    trapAs(frmPopHelp::kProject, "frmPopHelp", "openHelpPop", [&] {
        auto pop = std::make_shared<frmPopHelp>(printer_, tour_);
        auto previous = shown_;
        shown_ = pop;
        lastTopic_ = topic;
        pop->closePop.connect([raw = pop.get()] { raw->unload(); });
        pop->setHelpPrinterSettings(printSetting);
        if (pop->Setup(topic)) pop->showModal(topmostShown());
        pop->unload();
        shown_ = previous;
    });
}

}  // namespace qv
