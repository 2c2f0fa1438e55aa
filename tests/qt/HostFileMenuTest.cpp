// The File menu's import and exports on the host's window: the list
// refreshed after an import, a cancelled file dialog doing nothing.

#include <QAction>

#include "HostFixture.h"
#include "view/HostWindow.h"
#include "view/TaskFileMenu.h"
#include "view/TaskTableModel.h"

namespace qv {
namespace {

class HostFileMenu : public HostFixture {
protected:
    // The next file dialog answers path; outcomes are kept.
    void answer(const QString& path) {
        host().window().files().chooseFile = [path](TaskFileMenu::FileKind) { return path; };
        host().window().files().tell = [this](bool ok, const QString& text) { told.push_back({ok, text}); };
    }
    QAction* action(const char* name) const { return host().window().findChild<QAction*>(name); }

    std::vector<std::pair<bool, QString>> told;
};

TEST_F(HostFileMenu, AnImportFillsTheListAndAnExportWritesTheFile) {
    answer(QString::fromUtf8(QV_SOURCE_DIR "/tests/interop/foreign.ics"));
    action("actImportTasks")->trigger();
    ASSERT_EQ(told.size(), 1u);
    EXPECT_TRUE(told[0].first) << told[0].second.toStdString();
    EXPECT_EQ(host().window().tasks().rowCount(), 3);

    const QString out = QString::fromStdString(folder() + "/out.ics");
    answer(out);
    action("actExportTasks")->trigger();
    EXPECT_EQ(told.back().second, "Exported 3 tasks and 1 appointment to " + out + ".");

    answer({});  // a cancelled dialog
    const std::size_t before = told.size();
    action("actExportSpreadsheet")->trigger();
    EXPECT_EQ(told.size(), before);
    answer(QString::fromStdString(folder() + "/one.ics"));
    action("actExportTask")->trigger();
    EXPECT_EQ(told.back(), std::make_pair(false, QString("Choose a task in the list first.")));
}

}  // namespace
}  // namespace qv
