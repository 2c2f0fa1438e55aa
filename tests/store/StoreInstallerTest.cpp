#include <filesystem>

#include "installer/DateConventions.h"
#include "installer/DefaultSettings.h"
#include "installer/StoreInstaller.h"
#include "support/ScopedEnv.h"
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

// The DateFormats rows as name=value, in order.
std::string dateFormatRows(const std::vector<SettingRow>& rows) {
    std::string out;
    for (const auto& r : rows)
        if (r.section == "DateFormats") out += r.name + "=" + r.value + ";";
    return out;
}

// The order, separator, clock and first day of the week follow the locale;
// every other row, and every row of US English and C, stays as it always was.
TEST(DateConventions, SeedTheDateFormatsAfterTheLocale) {
    const std::string usRows =
        "Month1=January;Month2=February;Month3=March;Month4=April;Month5=May;Month6=June;Month7=July;"
        "Month8=August;Month9=September;Month10=October;Month11=November;Month12=December;Day1=Monday;"
        "Day2=Tuesday;Day3=Wednesday;Day4=Thursday;Day5=Friday;Day6=Saturday;Day7=Sunday;DayLetters=S,M,T,W,T,F,S;"
        "WeekStartDay=1;DDFormat=0;DDMonth=0;DDSep=/;D5Format=0;D5Start=480;D5End=1020;D5Prime=16777215;"
        "D5NonPrime=14737632;WMFormat=0;WMHeading=12632256;WMDate=0;CalWeekends=1;CalDaysColor=0;"
        "CalWeekendColor=255;HoursInDay=24;ApptColor=16744576;ApptDoneColor=8421504;ApptOutlook=8454016;"
        "HoursColor=0;";
    struct Case {
        const char* locale;
        const char* weekStart;
        const char* order;
        const char* separator;
        const char* clock;
    };
    const Case cases[] = {
        {"en_US.UTF-8", "1", "0", "/", "0"}, {"C", "1", "0", "/", "0"},      {"POSIX", "1", "0", "/", "0"},
        {"C.UTF-8", "1", "0", "/", "0"},     {"", "1", "0", "/", "0"},       {"en", "1", "0", "/", "0"},
        {"de_DE.UTF-8", "1", "1", ".", "1"}, {"de_CH", "1", "1", ".", "1"},  {"en_GB.UTF-8", "1", "1", "/", "1"},
        {"en_AU", "1", "1", "/", "0"},       {"en_CA", "0", "2", "-", "0"},  {"fr_FR.UTF-8@euro", "1", "1", "/", "1"},
        {"nl_NL", "1", "1", "-", "1"},       {"sv_SE", "1", "2", "-", "1"},  {"ja_JP.UTF-8", "0", "2", "/", "1"},
        {"pt_BR", "0", "1", "/", "1"},       {"ar_EG", "6", "1", "/", "0"},  {"xx_DE", "1", "0", "/", "0"},
        {"xx_US", "0", "0", "/", "0"}};
    const auto plain = defaultSettings(DateConventions{});
    ASSERT_EQ(dateFormatRows(plain), usRows);
    for (const Case& c : cases) {
        const auto rows = defaultSettings(DateConventions::forLocale(c.locale));
        ASSERT_EQ(rows.size(), plain.size()) << c.locale;
        std::string want = usRows;
        const auto put = [&want](const std::string& name, const std::string& old, const std::string& now) {
            want.replace(want.find(";" + name + "=" + old + ";"), name.size() + old.size() + 3, ";" + name + "=" + now + ";");
        };
        put("WeekStartDay", "1", c.weekStart);
        put("DDFormat", "0", c.order);
        put("DDSep", "/", c.separator);
        put("D5Format", "0", c.clock);
        EXPECT_EQ(dateFormatRows(rows), want) << c.locale;
        for (std::size_t i = 0; i < rows.size(); ++i) {
            if (rows[i].section != "DateFormats") {
                EXPECT_EQ(rows[i].value, plain[i].value) << c.locale << " " << rows[i].name;
            }
        }
    }
}

// LC_ALL outweighs LC_TIME, which outweighs LANG, as for every program.
TEST(DateConventions, TheTimeLocaleComesFromTheEnvironment) {
    struct Case {
        const char *all, *time, *lang, *want;
    };
    const Case cases[] = {{"de_DE.UTF-8", "en_GB", "fr_FR", "de_DE.UTF-8"},
                          {"", "en_GB", "fr_FR", "en_GB"},
                          {nullptr, nullptr, "fr_FR", "fr_FR"},
                          {nullptr, nullptr, nullptr, "C"}};
    for (const Case& c : cases) {
        ScopedEnv env;
        env.set("LC_ALL", c.all).set("LC_TIME", c.time).set("LANG", c.lang);
        EXPECT_EQ(DateConventions::timeLocale(), c.want);
    }
}

TEST_F(Installer, ANewStoreWritesDatesAsTheUsersLocaleDoes) {
    for (const char* end : {"", "-wal", "-shm"}) std::filesystem::remove(storePath() + end);
    ScopedEnv env;
    env.set("LC_ALL", "de_DE.UTF-8");
    ASSERT_TRUE(installStore(folder()));
    EXPECT_EQ(setting("DateFormats", "DDFormat"), "1");
    EXPECT_EQ(setting("DateFormats", "DDSep"), ".");
    EXPECT_EQ(setting("DateFormats", "Month1"), "January");
}

}  // namespace
}  // namespace qv
