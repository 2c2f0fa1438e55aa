#include "store/ErrorPath.h"

#include <new>
#include <stdexcept>

#include "session/globals/SessionGlobals.h"
#include "store/ConsoleReporter.h"
#include "store/SaveTransaction.h"
#include "toolkit/Failure.h"
#include "toolkit/Form.h"
#include "toolkit/Ports.h"
#include "toolkit/Reporter.h"

namespace qv {

namespace {

constexpr int32_t kOutOfMemory = 7;
constexpr const char* kMainFormName = "frmMain";

struct Described {
    int32_t number;
    std::string description;
};

// Numbers as the platform gave them for the usual kinds of fault; a
// library's own words never reach the user.
Described describeCurrent() {
    try {
        throw;
    } catch (const Failure& f) {
        return {f.number(), f.description()};
    } catch (const std::bad_alloc&) {
        return {kOutOfMemory, "Out of memory"};
    } catch (const std::out_of_range&) {
        return {err::SubscriptOutOfRange, "Subscript out of range"};
    } catch (const std::overflow_error&) {
        return {err::Overflow, "Overflow"};
    } catch (const std::exception&) {
        return {err::InvalidProcedureCall, "Unexpected failure"};
    } catch (...) {
        return {err::InvalidProcedureCall, "Unknown failure"};
    }
}

struct PathState {
    int sessions = 0;      // FaultSessions alive
    bool running = false;  // inside ReportError
    bool ended = false;    // the path ran in this session
};

PathState& state() {
    static PathState s;
    return s;
}

Reporter& reporter() {
    static ConsoleReporter fallback;
    return ports().reporter ? *ports().reporter : fallback;
}

// "NONE" or nothing means the user has no mail profile.
std::string profileForReport() {
    const auto& profile = g().OutlookProfile;
    return (profile.empty() || profile == "NONE") ? std::string() : profile;
}

void unloadQuietly(Form& form) {
    try {
        form.unload();
    } catch (...) {
        // The error path goes on whatever a form's unload does.
    }
}

// The main window's form goes last.
void unloadAllForms() {
    for (const auto& form : Form::openForms())
        if (form->name() != kMainFormName) unloadQuietly(*form);
    for (const auto& form : Form::openForms()) unloadQuietly(*form);
}

}  // namespace

FaultSession::FaultSession() {
    if (state().sessions++ == 0) state().ended = false;
}

FaultSession::~FaultSession() {
    if (--state().sessions == 0) state().ended = false;
}

bool errorPathTaken() {
    return state().running || state().ended;
}

void ReportError(const std::string& project, const std::string& module, const std::string& procedure,
                 const std::string& description, int32_t number, int32_t line,
                 const std::array<std::string, 6>& UStuff) {
    auto& path = state();
    if (errorPathTaken()) return;  // a consequence of the fault already told
    path.running = true;
    // Open saves end first: no lock is held while the user reads the report.
    SaveTransaction::settleAll();
    FaultReport fault{project, module, procedure, description, number, line, UStuff, profileForReport()};
    try {
        reporter().report(fault);
    } catch (...) {
        // A reporter that fails must not stop the forms from closing.
    }
    unloadAllForms();
    path.running = false;
    if (path.sessions > 0) path.ended = true;
}

void reportCurrentFailure(const char* module, const char* procedure) noexcept {
    reportCurrentFailure(nullptr, module, procedure);
}

void reportCurrentFailure(const char* project, const char* module, const char* procedure) noexcept {
    try {
        const auto fault = describeCurrent();
        ReportError(project ? project : kProjectName, module, procedure, fault.description, fault.number, 0, g().UStuff);
    } catch (...) {
        // Nothing may leave the trap.
    }
}

}  // namespace qv
