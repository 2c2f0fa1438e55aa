#include "FuzzPorts.h"

#include <cstdio>
#include <cstdlib>

#include "session/globals/SessionGlobals.h"
#include "toolkit/CountingReporter.h"
#include "toolkit/FakeClock.h"
#include "toolkit/Ports.h"
#include "toolkit/ScriptedUi.h"
#include "toolkit/Ui.h"

namespace qv::fuzz {

namespace {

struct Installed {
    ScriptedUi ui;
    FakeClock clock;
    CountingReporter reporter;
    Installed() {
        resetGlobals();
        ports().ui = &ui;
        ports().clock = &clock;
        ports().reporter = &reporter;
    }
};

Installed& installed() {
    static Installed* once = new Installed;  // lives for the whole run
    return *once;
}

}  // namespace

void readyPorts() {
    auto& p = installed();
    p.ui.clearMessages();
    if (p.ui.pendingAnswers() == 0) p.ui.queueAnswer(vbOK);
}

int faultsTold() {
    return installed().reporter.faults;
}

void broken(const char* what, const std::string& input) {
    std::fprintf(stderr, "broken: %s for an input of %zu bytes\n", what, input.size());
    std::abort();
}

}  // namespace qv::fuzz
