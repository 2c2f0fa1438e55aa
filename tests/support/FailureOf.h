#pragma once
// The Failure a call throws, so that its number and words are checked in a
// line; number 0 ("no failure") when the call threw none.

#include <functional>

#include "toolkit/Failure.h"

namespace qv {

inline Failure failureOf(const std::function<void()>& call) {
    try {
        call();
    } catch (const Failure& e) {
        return e;
    }
    return Failure(0, "no failure");
}

}  // namespace qv
