#pragma once
// How many runs a repeated process test makes: the number in the named
// environment variable, else the default.

#include <cstdlib>

namespace qv {

inline int runCount(const char* variable, int fallback) {
    const char* env = std::getenv(variable);
    const int n = env ? std::atoi(env) : 0;
    return n > 0 ? n : fallback;
}

}  // namespace qv
