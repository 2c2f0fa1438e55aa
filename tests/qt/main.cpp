// Widget tests need one QApplication; they run on the offscreen platform.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Drafts of the dialogs go into a folder of this run.
    QTemporaryDir state;
    qputenv("XDG_STATE_HOME", state.path().toUtf8());
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
