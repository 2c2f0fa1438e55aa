#pragma once
// The one error path: a failure inside a procedure is caught at the
// procedure's boundary (the trap), reported, and every form is unloaded.

#include <array>
#include <cstdint>
#include <exception>
#include <string>
#include <type_traits>
#include <utility>

#include "Export.h"

namespace qv {

// Tells the reporter of the fault, then unloads every open form. The path
// is never re-entered: a fault raised while it runs (an unload saving its
// settings on a broken store) is dropped, and so is every later fault of
// the same session, which the first one caused: one report, not a storm.
QV_EXPORT void ReportError(const std::string& project, const std::string& module, const std::string& procedure,
                 const std::string& description, int32_t number, int32_t line,
                 const std::array<std::string, 6>& UStuff);

// Reports the exception in flight as a fault of module.procedure. Call it
// only from a catch block. A null project is the component's own name.
QV_EXPORT void reportCurrentFailure(const char* module, const char* procedure) noexcept;
QV_EXPORT void reportCurrentFailure(const char* project, const char* module, const char* procedure) noexcept;

// A host session (the outermost SetupTask) while the object lives: the
// first fault of the session is reported, those after it are dropped.
class FaultSession {
public:
    FaultSession();
    ~FaultSession();
    FaultSession(const FaultSession&) = delete;
    FaultSession& operator=(const FaultSession&) = delete;
};

// True while the error path runs, and for the rest of a session it ended:
// the store is not touched again then (no settings file dialogue, no waits
// on a busy store), and faults go unreported.
bool errorPathTaken();

// Runs body under the trap, reporting a fault under the given project name
// (a form that came from another project keeps that one's name).
template <class F>
auto trapAs(const char* project, const char* module, const char* procedure, F&& body) {
    using R = std::invoke_result_t<F>;
    if constexpr (std::is_void_v<R>) {
        try {
            body();
            return true;
        } catch (...) {
            reportCurrentFailure(project, module, procedure);
            return false;
        }
    } else {
        try {
            return body();
        } catch (...) {
            reportCurrentFailure(project, module, procedure);
            return R{};
        }
    }
}

// Runs body under the trap. A failure is reported and the procedure's
// default result comes back: false, 0, empty. A body without a result
// gives true when it ran to its end.
template <class F>
auto trap(const char* module, const char* procedure, F&& body) {
    return trapAs(nullptr, module, procedure, std::forward<F>(body));
}

}  // namespace qv
