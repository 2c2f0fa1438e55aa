#pragma once
// A fresh application folder with a fresh store, and the desktop host on
// it: the real Qt Ui, views and main window, under the offscreen platform.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QTemporaryDir>
#include <QTest>
#include <functional>
#include <memory>
#include <string>

#include "view/HostApp.h"
#include "view/StepRunner.h"

class QSplitterHandle;

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
    // The host's event log.
    [[nodiscard]] QString log() const;

    // Runs the steps while open() shows a dialog; returns when it closed.
    static void run(StepRunner& steps, const std::function<void()>& open);
    // The same for a New Task, and for a stored task in the Existing Task dialog.
    void openNewTask(StepRunner& steps);
    void openTask(StepRunner& steps, const std::string& key);
    // Every step ran; the messages seen are told when one did not.
    [[nodiscard]] static ::testing::AssertionResult ranAll(const StepRunner& steps);

    // The cell of a tool in a form's window, and the button of a button tool.
    [[nodiscard]] static ToolCell* cell(const QString& form, const QString& name);
    [[nodiscard]] static QAbstractButton* button(const QString& form, const QString& name);
    [[nodiscard]] static bool shown(const QString& form) { return StepRunner::formWindow(form) != nullptr; }
    // Drags a splitter's handle by dy pixels, as a mouse would.
    static void drag(QSplitterHandle* handle, int dy);

    static constexpr int kStartTimerSettleMs = 700;

private:
    QTemporaryDir dir_;
    std::unique_ptr<HostApp> host_;
};

}  // namespace qv
