#pragma once
// Runs a dialog's handlers under the error path, with the dialog as the
// module and the handler as the procedure: trapped("SaveTask", [&] { ... }).

#include <utility>

#include "store/ErrorPath.h"

namespace qv {

class DialogTrap {
public:
    explicit DialogTrap(const char* module) : module_(module) {}

    template <class F>
    auto operator()(const char* procedure, F&& body) const {
        return trap(module_, procedure, std::forward<F>(body));
    }

private:
    const char* module_;
};

}  // namespace qv
