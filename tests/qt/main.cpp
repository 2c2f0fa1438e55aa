// Widget tests need one QApplication; they run on the offscreen platform.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

#include "kit/UserLanguage.h"

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Drafts of the dialogs go into a folder of this run.
    QTemporaryDir state;
    qputenv("XDG_STATE_HOME", state.path().toUtf8());
    QApplication app(argc, argv);
    qv::UserLanguage::useIn(app);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
