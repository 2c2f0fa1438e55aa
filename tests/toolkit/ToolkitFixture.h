#pragma once
// Installs a fake clock and a scripted user interface for one test and
// takes them out again afterwards.

#include <gtest/gtest.h>

#include "toolkit/FakeClock.h"
#include "toolkit/Form.h"
#include "toolkit/Ports.h"
#include "toolkit/ScriptedUi.h"

namespace qv {

class ToolkitFixture : public ::testing::Test {
protected:
    void SetUp() override {
        saved_ = ports();
        ports().clock = &clock_;
        ports().ui = &ui_;
    }
    void TearDown() override {
        releaseDeferred();
        ports() = saved_;
    }

    FakeClock clock_;
    ScriptedUi ui_;

private:
    Ports saved_;
};

}  // namespace qv
