#include "script/ScriptHelp.h"

#include "help/frmPopHelp.h"
#include "toolkit/Ports.h"

namespace qv {

namespace {
std::string fileOf(const std::string& path) {
    const auto slash = path.find_last_of('/');
    return slash == std::string::npos ? path : path.substr(slash + 1);
}
}  // namespace

ScriptHelp::ScriptHelp(std::ostream& out) : out_(out), viewer_(this) { ports().help = &viewer_; }

ScriptHelp::~ScriptHelp() {
    if (ports().help == &viewer_) ports().help = nullptr;
}

void ScriptHelp::print(const HelpPrintJob& job) {
    out_ << "help printed: " << fileOf(job.page) << " (" << job.heading << ")\n";
    engine_.print(job);
}

void ScriptHelp::preview(const HelpPrintJob& job) {
    out_ << "help previewed: " << fileOf(job.page) << " (" << job.heading << ")\n";
    engine_.preview(job);
}

std::string ScriptHelp::checkTopic(int32_t topic, const std::string& title) const {
    const frmPopHelp* pop = viewer_.shown();
    if (!pop) return "no help is shown";
    if (viewer_.lastTopic() == topic && pop->caption() == title) return {};
    return "the help shows topic " + std::to_string(viewer_.lastTopic()) + " \"" + pop->caption() + "\"";
}

std::string ScriptHelp::checkPage(const std::string& file) const {
    const frmPopHelp* pop = viewer_.shown();
    if (!pop) return "no help is shown";
    const std::string shown = pop->browsePWindow.hasPage() ? fileOf(pop->browsePWindow.LocationURL()) : "";
    if (shown == file) return {};
    return "the help pane shows \"" + shown + "\"";
}

}  // namespace qv
