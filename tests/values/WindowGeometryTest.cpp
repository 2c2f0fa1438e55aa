#include "values/settings/WindowGeometry.h"

#include <gtest/gtest.h>

#include "session/globals/SessionGlobals.h"
#include "support/TestEnv.h"
#include "toolkit/Form.h"
#include "values/settings/Settings.h"

namespace qv {
namespace {

class WindowGeometryTest : public TestEnv {};

TEST_F(WindowGeometryTest, ResizeKeepsNormalGeometryAndOnlyTheStateOtherwise) {
    Form form("frmExistingTask");
    auto rules = WindowGeometry::forExistingTask(form);
    form.userResized({100, 200, 5000, 9000, vbNormal});
    rules.onResize();
    EXPECT_EQ(form.geometry().width, 8400);  // held to the minimum
    EXPECT_EQ(form.geometry().height, 9000);
    EXPECT_EQ(g().ETaskWindow, (std::array<int32_t, 6>{200, 100, 8400, 9000, 0, 0}));

    form.userResized({0, 0, 20000, 15000, vbMaximized});
    rules.onResize();
    EXPECT_EQ(g().ETaskWindow, (std::array<int32_t, 6>{200, 100, 8400, 9000, 2, 0}));
    form.userResized({0, 0, 100, 100, vbMinimized});
    rules.onResize();
    EXPECT_EQ(g().ETaskWindow, (std::array<int32_t, 6>{200, 100, 8400, 9000, 1, 0}));

    // The minimum sizes of the three dialogs.
    struct Case {
        WindowGeometry (*make)(Form&);
        std::array<int32_t, 6>* window;
        int32_t width, height;
    } cases[] = {{WindowGeometry::forTAS, &g().TASWindow, 8400, 6300},
                 {WindowGeometry::forExistingTask, &g().ETaskWindow, 8400, 6710},
                 {WindowGeometry::forNewTask, &g().TaskWindow, 8400, 6000}};
    for (const auto& c : cases) {
        form.userResized({1, 2, 10, 10, vbNormal});
        c.make(form).onResize();
        EXPECT_EQ((*c.window)[2], c.width);
        EXPECT_EQ((*c.window)[3], c.height);
    }
    EXPECT_EQ(g().TASWindow[5], 0);  // TAS keeps its state sixth
}

TEST_F(WindowGeometryTest, ClosedMinimisedComesBackMaximised) {
    ASSERT_TRUE(LoadSettings());
    {
        Form form("frmTask3");
        auto rules = WindowGeometry::forNewTask(form);
        form.userResized({300, 400, 9000, 7000, vbNormal});
        rules.onResize();
        form.userResized({300, 400, 9000, 7000, vbMinimized});
        rules.onResize();
        rules.onClose();
    }
    g().TaskWindow = {};
    ASSERT_TRUE(LoadSettings());
    Form reopened("frmTask3");
    WindowGeometry::forNewTask(reopened).restore();
    const auto& at = reopened.geometry();
    EXPECT_EQ((std::array<int32_t, 4>{at.left, at.top, at.width, at.state}),
              (std::array<int32_t, 4>{300, 400, 9000, vbMaximized}));

    g().TaskWindow[4] = 0;
    Form normal("frmTask3");
    WindowGeometry::forNewTask(normal).restore();
    EXPECT_EQ(normal.geometry().state, vbNormal);
    EXPECT_EQ(normal.geometry().height, 7000);
    g().TaskWindow[4] = 7;  // any other state leaves the window as it was
    Form other("frmTask3");
    WindowGeometry::forNewTask(other).restore();
    EXPECT_EQ(other.geometry().width, 0);
}

TEST_F(WindowGeometryTest, LayoutFileRules) {
    g().AppPath = "/opt/q";
    EXPECT_EQ(WindowGeometry::layoutPath("QuorvelTAS.slf"), "/opt/q/QuorvelTAS.slf");
    g().AppPath = "/opt/q/";
    EXPECT_EQ(WindowGeometry::layoutPath("QuorvelTAS.slf"), "/opt/q/QuorvelTAS.slf");

    g().AppPath = folder();
    const std::string path = WindowGeometry::layoutPath("QuorvelETask.slf");
    g().AppVersion = 10;
    EXPECT_FALSE(WindowGeometry::mayLoadLayout(path));  // no file yet
    writeFile(path, "layout");
    EXPECT_TRUE(WindowGeometry::mayLoadLayout(path));
    g().AppVersion = 9.5f;
    EXPECT_FALSE(WindowGeometry::mayLoadLayout(path));
    g().AppVersion = 0;
    EXPECT_FALSE(WindowGeometry::mayLoadLayout(path));
}

}  // namespace
}  // namespace qv
