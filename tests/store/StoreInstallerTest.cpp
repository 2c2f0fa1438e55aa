#include <filesystem>

#include "installer/StoreInstaller.h"
#include "support/TestEnv.h"

namespace qv {
namespace {

class Installer : public TestEnv {
protected:
    void SetUp() override {
        TestEnv::SetUp();
        QV_FILE_STORE_ONLY();
    }
    int64_t sectionRows(const std::string& section) const {
        return readInt("SELECT COUNT(*) FROM Settings WHERE SetUser='1' AND SetSettingSection='" + section +
                       "'");
    }
    std::string setting(const std::string& section, const std::string& name) const {
        return readOne("SELECT SetSettingValue FROM Settings WHERE SetSettingSection='" + section +
                       "' AND SetSettingName='" + name + "'");
    }
    std::string declaredType(const std::string& table, const std::string& column) const {
        return readOne("SELECT type FROM pragma_table_info('" + table + "') WHERE name='" + column + "'");
    }
};

TEST_F(Installer, AFreshStoreHoldsEverySectionTheLoadReads) {
    const std::pair<const char*, int> sections[] = {
        {"AppVersion", 1},           {"Spellchecking", 1}, {"UserStuff", 6},   {"Status", 6},
        {"Importance Level", 5},     {"Difficulty", 5},    {"Time Needed", 6}, {"TAS", 6},
        {"TASKWINDOW", 5},           {"ETASK", 6},         {"Points", 15},     {"OutLookIntegration", 1},
        {"OutlookProfileString", 1}, {"DateFormats", 40}};
    for (const auto& [section, count] : sections) EXPECT_EQ(sectionRows(section), count) << section;

    EXPECT_EQ(setting("Status", "STATUS1"), "Completed");
    EXPECT_EQ(setting("Status", "STATUS4"), "Defined");
    EXPECT_EQ(setting("DateFormats", "HoursInDay"), "24");
    EXPECT_EQ(setting("DateFormats", "Month12"), "December");
    EXPECT_EQ(setting("OutLookIntegration", "Integrate Outlook Tasks"), "False");
    EXPECT_EQ(
        readInt("SELECT COUNT(DISTINCT SetSettingName) FROM Settings WHERE SetSettingSection='DateFormats'"),
        40);
    // The window state is the fifth value of the ETASK section.
    EXPECT_EQ(readOne("SELECT SetSettingName FROM Settings WHERE SetSettingSection='ETASK' "
                      "ORDER BY setSettingDisplayOrd LIMIT 1 OFFSET 4"),
              "WindowState");
    EXPECT_EQ(readInt("SELECT COUNT(*) FROM Settings WHERE SetDefault IS NOT SetSettingValue"), 0);
}

TEST_F(Installer, TablesCarryTheirNamesTypesAndKeys) {
    const char* const columns[][3] = {
        {"TASKS", "tskTCheckListGUID", "TEXT"}, {"TASKSCAT", "tskCheckListGUID", "TEXT"},
        {"TASKSCAT", "tskTCheckListGUID", ""},  {"TASKSCAT", "tskTimeN4", "INTEGER"},
        {"TASKS", "tskCurrent", "BOOLEAN"},     {"TASKS", "tskDeadline", "DATETIME"},
        {"TASKAPPTS", "taImp", "SMALLINT"},     {"PROJECTS", "StatusLong", "INTEGER"},
        {"CHECKLISTS", "ckContent", "TEXT"}};
    for (const auto& c : columns) EXPECT_EQ(declaredType(c[0], c[1]), c[2]) << c[0] << "." << c[1];

    // A second catalog save of the same task fails on the key; an
    // appointment key or a keyword link may stand twice.
    exec("INSERT INTO TASKSCAT (tskGUIDID) VALUES ('K')");
    EXPECT_ANY_THROW(exec("INSERT INTO TASKSCAT (tskGUIDID) VALUES ('K')"));
    exec("INSERT INTO TASKS (tskGUIDID) VALUES ('K')");
    EXPECT_ANY_THROW(exec("INSERT INTO TASKS (tskGUIDID) VALUES ('K')"));
    exec("INSERT INTO TASKAPPTS (taGUIDID) VALUES ('A'), ('A')");
    exec("INSERT INTO TaskKeywords (ktTASKGUID, ktKEYGUID) VALUES ('K', 'W'), ('K', 'W')");
    EXPECT_EQ(readInt("SELECT COUNT(*) FROM TASKAPPTS") + readInt("SELECT COUNT(*) FROM TaskKeywords"), 4);
}

TEST_F(Installer, AnExistingStoreIsLeftUntouched) {
    exec("DELETE FROM Settings WHERE SetSettingSection='Status'");
    const auto before = readFile(storePath());
    EXPECT_FALSE(installStore(folder()));
    EXPECT_EQ(readFile(storePath()), before);
    EXPECT_EQ(sectionRows("Status"), 0);
    EXPECT_FALSE(std::filesystem::exists(storePath() + ".part"));

    installSettingsFile(folder() + "/");
    EXPECT_EQ(readFile(settingsPath()),
              "<Quorvel>\r\n<DBLoc>\r\n" + storePath() + "\r\n</DBLoc>\r\n</Quorvel>\r\n");
}

}  // namespace
}  // namespace qv
