#pragma once
// A fresh application folder with a fresh store, and the desktop host on
// it: the real Qt Ui, views and main window, under the offscreen platform.

#include <memory>
#include <string>

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "view/HostApp.h"
#include "view/StepRunner.h"

namespace qv {

class ToolCell;

class HostFixture : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    [[nodiscard]] std::string folder() const { return dir_.path().toStdString(); }
    [[nodiscard]] HostApp& host() const { return *host_; }
    void exec(const std::string& sql) const;
    [[nodiscard]] long long count(const std::string& sql) const;
    [[nodiscard]] std::string text(const std::string& sql) const;

    // Runs the steps while the host opens a New Task; returns when it closed.
    void openNewTask(StepRunner& steps);
    // The same for a stored task in the Existing Task dialog.
    void openTask(StepRunner& steps, const std::string& key);
    // The cell of a tool in a form's window.
    [[nodiscard]] static ToolCell* cell(const QString& form, const QString& name);
    [[nodiscard]] static bool shown(const QString& form) { return StepRunner::formWindow(form) != nullptr; }

    static constexpr int kStartTimerSettleMs = 700;

private:
    QTemporaryDir dir_;
    std::unique_ptr<HostApp> host_;
};

}  // namespace qv
