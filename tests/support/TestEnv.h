#pragma once
// The fixture of every logic test: a fresh folder as the program's folder,
// fresh globals, the store installed there, and the scripted ports.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "support/RecordingReporter.h"
#include "toolkit/FakeClock.h"
#include "toolkit/ScriptedUi.h"

// For a test about the store file itself (its faults, its repair, its
// installation): skipped in the server pass.
#define QV_FILE_STORE_ONLY() \
    if (::qv::TestEnv::onServerStore()) GTEST_SKIP() << "about the store file"

namespace qv {

struct TestEnvOptions {
    bool store = true;         // QuorvelData.mdb in the folder
    bool settingsFile = true;  // QuorvelSettings.txt pointing at it
};

class TestEnv : public ::testing::Test {
protected:
    explicit TestEnv(TestEnvOptions options = {}) : options_(options) {}
    void SetUp() override;
    void TearDown() override;

    ScriptedUi& scriptedUi() { return ui_; }
    FakeClock& fakeClock() { return clock_; }
    RecordingReporter& reporter() { return reporter_; }

    // The program's folder, without a trailing "/".
    [[nodiscard]] const std::string& folder() const { return folder_; }
    [[nodiscard]] std::string storePath() const;
    [[nodiscard]] std::string settingsPath() const;

    // Direct access to the store file, past the component's own layer.
    void exec(const std::string& sql) const;
    // The first column of the first row as text; "" for null or no row.
    [[nodiscard]] std::string readOne(const std::string& sql) const;
    [[nodiscard]] int64_t readInt(const std::string& sql) const;
    // From now on the store refuses every UPDATE (or "INSERT") of table,
    // as a store that fails midway.
    void refuseWrites(const std::string& table, const std::string& event = "UPDATE") const;

    // True in the suite's pass on a server store (QV_STORE_URI).
    [[nodiscard]] static bool onServerStore();

    [[nodiscard]] static std::string readFile(const std::string& path);
    static void writeFile(const std::string& path, const std::string& text);

private:
    TestEnvOptions options_;
    std::string folder_;
    ScriptedUi ui_;
    FakeClock clock_;
    RecordingReporter reporter_;
};

}  // namespace qv
