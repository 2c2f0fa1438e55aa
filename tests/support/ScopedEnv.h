#pragma once
// Environment variables set for one test and put back as they were.

#include <cstdlib>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace qv {

class ScopedEnv {
public:
    ScopedEnv() = default;
    ScopedEnv(const ScopedEnv&) = delete;
    ScopedEnv& operator=(const ScopedEnv&) = delete;
    ~ScopedEnv() {
        for (auto it = saved_.rbegin(); it != saved_.rend(); ++it) apply(it->first.c_str(), it->second);
    }

    // A null value unsets the variable.
    ScopedEnv& set(const char* name, const char* value) {
        const char* old = std::getenv(name);
        saved_.emplace_back(name, old ? std::optional<std::string>(old) : std::nullopt);
        apply(name, value ? std::optional<std::string>(value) : std::nullopt);
        return *this;
    }

private:
    static void apply(const char* name, const std::optional<std::string>& value) {
        if (value)
            ::setenv(name, value->c_str(), 1);
        else
            ::unsetenv(name);
    }

    std::vector<std::pair<std::string, std::optional<std::string>>> saved_;
};

}  // namespace qv
