#include <filesystem>

#include "session/globals/SessionGlobals.h"
#include "store/ADOCode.h"
#include "toolkit/MessageText.h"
#include "support/TestEnv.h"

namespace qv {
namespace {

std::string settingsText(const std::string& dbPath) {
    return "<Quorvel>\r\n<DBLoc>\r\n" + dbPath + "\r\n</DBLoc>\r\n</Quorvel>\r\n";
}

std::string lostMessage(const std::string& path, const std::string& folder) {
    return "The Quorvel data file, \"" + path +
           "\", could not be found.\r\nWithout this file, Quorvel cannot work.\r\n\r\n"
           "Quorvel will now check in " +
           folder + " in hopes of locating the originally installed datafile (QuorvelData.mdb).";
}

class NothingInstalled : public TestEnv {
protected:
    NothingInstalled() : TestEnv({.store = false, .settingsFile = false}) {}
};

class StoreWithoutSettings : public TestEnv {
protected:
    StoreWithoutSettings() : TestEnv({.store = true, .settingsFile = false}) {}
};

TEST_F(NothingInstalled, NoSettingsFileAndNoStoreWarnsTwiceThenGivesUp) {
    scriptedUi().queueAnswer(vbOK);
    scriptedUi().queueAnswer(vbOK);
    EXPECT_FALSE(ADOTest());
    const auto& messages = scriptedUi().messages();
    ASSERT_EQ(messages.size(), 2u);
    EXPECT_EQ(messages[1].text, lostMessage(storePath(), folder()));
    EXPECT_EQ(messages[1].style, vbCritical);
    EXPECT_EQ(messages[1].title, "Quorvel - Version 1.14");
    EXPECT_EQ(readFile(settingsPath()), settingsText(storePath()));
    EXPECT_TRUE(g().ConnString.empty());
}

TEST_F(StoreWithoutSettings, NoSettingsFileWithStoreMakesTheFileSilently) {
    EXPECT_TRUE(ADOTest());
    EXPECT_TRUE(scriptedUi().messages().empty());
    EXPECT_EQ(readFile(settingsPath()), settingsText(storePath()));
    EXPECT_EQ(g().ConnString, "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + storePath() + ";");
    EXPECT_EQ(g().ConnStringShaped,
              "Provider=MSDataShape; Data Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + storePath() + ";");
    EXPECT_EQ(g().DBLocation, storePath());
}

TEST_F(TestEnv, LostStoreFallsBackToTheDefaultWithOneMessage) {
    QV_FILE_STORE_ONLY();
    const auto lost = folder() + "/gone/QuorvelData.mdb";
    writeFile(settingsPath(), settingsText(lost));
    scriptedUi().queueAnswer(vbOK);
    EXPECT_TRUE(ADOTest());
    ASSERT_EQ(scriptedUi().messages().size(), 1u);
    EXPECT_EQ(scriptedUi().lastMessage().text, lostMessage(lost, folder()));
    EXPECT_EQ(readFile(settingsPath()), settingsText(storePath()));
    EXPECT_EQ(g().DBLocation, storePath());

    // A file without the tags yields no path and is repaired the same way.
    resetGlobals();
    g().AppPath = folder();
    writeFile(settingsPath(), "just some words");
    scriptedUi().clearMessages();
    scriptedUi().queueAnswer(vbOK);
    EXPECT_TRUE(ADOTest());
    EXPECT_EQ(scriptedUi().lastMessage().text, lostMessage("", folder()));

    // A path of a megabyte is quoted cut, not whole.
    resetGlobals();
    g().AppPath = folder();
    const std::string huge = "/" + std::string(1 << 20, 'p');
    writeFile(settingsPath(), settingsText(huge));
    scriptedUi().clearMessages();
    scriptedUi().queueAnswer(vbOK);
    EXPECT_TRUE(ADOTest());
    const std::string& text = scriptedUi().lastMessage().text;
    EXPECT_LT(text.size(), 1000u);
    EXPECT_EQ(text, lostMessage(cutForMessage(huge), folder()));
}

TEST_F(StoreWithoutSettings, PathsKeepTheirShape) {
    // A folder ending in the separator gets no second one.
    g().AppPath = folder() + "/";
    EXPECT_TRUE(ADOTest());
    EXPECT_EQ(g().DBLocation, storePath());
    EXPECT_EQ(g().ConnString.find("//"), std::string::npos);

    // Semicolons and blanks go into the connection text as they stand.
    const auto odd = folder() + "/my data; v2.mdb";
    std::filesystem::copy_file(storePath(), odd);
    writeFile(settingsPath(), settingsText(odd));
    g().ConnString.clear();
    EXPECT_TRUE(ADOTest());
    EXPECT_EQ(g().ConnString, "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + odd + ";");
    EXPECT_TRUE(scriptedUi().messages().empty());
}

TEST_F(StoreWithoutSettings, UnwritableSettingsFileGivesTheSettingsMessage) {
    std::filesystem::create_directory(settingsPath());
    scriptedUi().queueAnswer(vbOK);
    EXPECT_FALSE(ADOTest());
    ASSERT_EQ(scriptedUi().messages().size(), 1u);
    EXPECT_EQ(scriptedUi().lastMessage().text,
              "The Quorvel settings file, \"QuorvelSettings.txt\", could not be found in (\"" + folder() +
                  "\" ).\r\nWithout this file, Quorvel cannot determine where its database resides. "
                  "Please find this file and put it back!");
    EXPECT_EQ(scriptedUi().lastMessage().style, vbCritical);
    EXPECT_TRUE(g().ConnString.empty());
}

TEST_F(StoreWithoutSettings, TheSettingsFileIsReplacedWholeAndReadWithEitherLineEnd) {
    // Lines ended by LF alone name the same store, not a cut path.
    const auto other = folder() + "/Other.mdb";
    std::filesystem::copy_file(storePath(), other);
    writeFile(settingsPath(), "<Quorvel>\n<DBLoc>\n" + other + "\n</DBLoc>\n</Quorvel>\n");
    EXPECT_TRUE(ADOTest());
    EXPECT_EQ(g().DBLocation, other);
    EXPECT_TRUE(scriptedUi().messages().empty());
    EXPECT_EQ(dbLocationIn(settingsText(other)), other);
    EXPECT_EQ(dbLocationIn("<DBLoc>\r\n" + other + "\n</DBLoc>"), other);

    // Written as CR LF, through a file beside it that is renamed over the
    // old one: no partial file is ever left behind.
    writeSettingsFile(folder(), storePath());
    EXPECT_EQ(readFile(settingsPath()), settingsText(storePath()));
    for (const auto& entry : std::filesystem::directory_iterator(folder()))
        EXPECT_EQ(entry.path().string().find(".part"), std::string::npos) << entry.path();
}

}  // namespace
}  // namespace qv
