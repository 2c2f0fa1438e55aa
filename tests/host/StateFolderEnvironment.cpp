// The drafts the host tests' dialogs leave go into a folder of this run,
// not into the user's state folder.

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <stdexcept>
#include <string>

namespace {

class StateFolderEnvironment : public ::testing::Environment {
public:
    void SetUp() override {
        auto pattern = (std::filesystem::temp_directory_path() / "quorvel-state-XXXXXX").string();
        if (!mkdtemp(pattern.data())) throw std::runtime_error("cannot make a temporary folder");
        folder_ = pattern;
        ::setenv("XDG_STATE_HOME", folder_.c_str(), 1);
    }
    void TearDown() override {
        std::error_code ec;
        std::filesystem::remove_all(folder_, ec);
    }

private:
    std::string folder_;
};

const auto* const kStateFolder = ::testing::AddGlobalTestEnvironment(new StateFolderEnvironment);

}  // namespace
