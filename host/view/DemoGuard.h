#pragma once
// Keeps the demonstration out of a user's data: it runs only on a folder
// whose store holds no tasks, or only tasks an earlier demonstration made
// (their keys are kept in screenshots/demo-tasks.txt).

#include <string>

namespace qv {

class DemoGuard {
public:
    explicit DemoGuard(std::string folder);

    // Empty when the demonstration may run here; else why not, in one sentence.
    [[nodiscard]] std::string refusal() const;
    // Takes every task the store holds now as the demonstration's.
    void remember() const;

private:
    [[nodiscard]] std::string listPath() const;

    std::string folder_;
};

}  // namespace qv
