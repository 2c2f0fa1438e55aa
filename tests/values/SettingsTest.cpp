#include "values/settings/Settings.h"

#include <gtest/gtest.h>

#include "session/globals/SessionGlobals.h"
#include "support/TestEnv.h"
#include "toolkit/Failure.h"

namespace qv {
namespace {

class SettingsTest : public TestEnv {
protected:
    [[nodiscard]] int64_t rows(const std::string& section) const {
        return readInt("SELECT count(*) FROM Settings WHERE SetSettingSection='" + section + "'");
    }
    [[nodiscard]] std::string value(const std::string& section, const std::string& name,
                                    const char* column = "SetSettingValue") const {
        return readOne(std::string("SELECT ") + column + " FROM Settings WHERE SetSettingSection='" + section +
                       "' AND SetSettingName='" + name + "'");
    }
    void setValue(const std::string& section, const std::string& name, const std::string& v) const {
        exec("UPDATE Settings SET SetSettingValue='" + v + "' WHERE SetSettingSection='" + section +
             "' AND SetSettingName='" + name + "'");
    }
    void expectOneFault(int32_t number) {
        ASSERT_EQ(reporter().faults().size(), 1u);
        EXPECT_EQ(reporter().faults()[0].module + "." + reporter().faults()[0].procedure, "m_Task.LoadSettings");
        EXPECT_EQ(reporter().faults()[0].number, number);
    }
};

TEST_F(SettingsTest, DefaultStoreFillsEveryGlobal) {
    setValue("AppVersion", "AppVersion", "7");
    ASSERT_TRUE(LoadSettings());
    EXPECT_TRUE(reporter().faults().empty());
    EXPECT_EQ(g().AppVersion, 10.0f);
    EXPECT_EQ(value("AppVersion", "AppVersion"), "10");  // stamped on every load
    EXPECT_TRUE(g().SpellCheckOn);
    EXPECT_EQ(g().UStuff[3], "1");
    EXPECT_EQ(g().StatusList, (std::vector<std::string>{"Completed", "In Progress", "On Hold", "Defined",
                                                        "Waiting", "Deferred"}));
    EXPECT_EQ(g().ImportanceList[4], "Minimal");
    EXPECT_EQ(g().DifficultyList[0], "Very Hard");
    EXPECT_EQ(g().TimeNeededLabels, (std::vector<std::string>{"0:15", "0:30", "1:00", "2:00", "4:00", "8:00"}));
    EXPECT_EQ(g().TimeNeededMinutes, (std::vector<int32_t>{15, 30, 60, 120, 240, 480}));
    EXPECT_EQ(g().TASWindow, (std::array<int32_t, 6>{1000, 2000, 9600, 7200, 2310, 0}));
    EXPECT_EQ(g().TaskWindow, (std::array<int32_t, 6>{1000, 2000, 9000, 6600, 0, 0}));
    EXPECT_EQ(g().ETaskWindow, (std::array<int32_t, 6>{1000, 3705, 9975, 7950, 0, 2505}));
    EXPECT_EQ(g().PointsTable[0], 10);
    EXPECT_EQ(g().PointsTable[12], 5);
    EXPECT_FALSE(g().OutlookIntegrationOn);
    EXPECT_EQ(g().OutlookProfile, "NONE");
    EXPECT_EQ(g().DateFormats[0], "January");
    EXPECT_EQ(g().DateFormats[35], "24");
}

TEST_F(SettingsTest, OlderStoresGainTheirMissingRows) {
    exec("DELETE FROM Settings WHERE SetSettingName='WindowState' AND SetSettingSection IN ('TAS','TASKWINDOW')");
    exec("DELETE FROM Settings WHERE SetSettingSection='ETASK'");
    g().TASWindow[5] = 2;
    ASSERT_TRUE(LoadSettings());
    EXPECT_EQ(rows("TAS"), 6);
    EXPECT_EQ(g().TASWindow[5], 0);
    EXPECT_EQ(value("TAS", "WindowState",
                    "SetSettingValue || '/' || SetDefault || '/' || setSettingDisplayOrd || '/' || SetUser || '/' "
                    "|| setSettingComment"),
              "0/0/5/1/Open Max or Normal, never minimized");
    EXPECT_EQ(rows("TASKWINDOW"), 5);
    EXPECT_EQ(value("TASKWINDOW", "WindowState", "setSettingDisplayOrd"), "5");  // 5, not 4

    // Five ETASK rows, value and default equal; "meWidth" carries "Left".
    EXPECT_EQ(rows("ETASK"), 5);
    EXPECT_EQ(value("ETASK", "meWidth", "setSettingComment"), "Left");
    EXPECT_EQ(value("ETASK", "meSplit", "SetDefault"), "2505");
    EXPECT_EQ(readOne(onServerStore() ? "SELECT string_agg(SetSettingName, ',' ORDER BY qv_rowid) FROM Settings "
                                        "WHERE SetSettingSection='ETASK'"
                                      : "SELECT group_concat(SetSettingName) FROM (SELECT SetSettingName FROM "
                                        "Settings WHERE SetSettingSection='ETASK' ORDER BY rowid)"),
              "meLeft,meHeight,meSplit,meTop,meWidth");
    // The split lands where the state is read.
    EXPECT_EQ(g().ETaskWindow, (std::array<int32_t, 6>{1000, 3705, 9975, 7950, 2505, 0}));

    // Five rows are no upgrade case; four are.
    ASSERT_TRUE(LoadSettings());
    EXPECT_EQ(rows("ETASK"), 5);
    exec("DELETE FROM Settings WHERE SetSettingSection='ETASK' AND SetSettingName='meSplit'");
    ASSERT_TRUE(LoadSettings());
    EXPECT_EQ(rows("ETASK"), 5);
    EXPECT_EQ(g().ETaskWindow[4], 0);
    EXPECT_EQ(rows("TAS"), 6);
    EXPECT_TRUE(reporter().faults().empty());
}

TEST_F(SettingsTest, ValueRulesOfValueAndWindowSections) {
    setValue("TAS", "meTop", "-500");
    setValue("Status", "STATUS2", "");
    exec("UPDATE Settings SET SetSettingName='status3' WHERE SetSettingSection='Status' AND SetSettingName='STATUS3'");
    setValue("Status", "status3", "Paused");
    exec("INSERT INTO Settings (SetUser, SetSettingSection, SetSettingName, SetSettingValue, SetDefault, "
         "setSettingDisplayOrd) VALUES ('1','Status','Other','x','',7)");
    setValue("Importance Level", "IMP2", "");
    exec("UPDATE Settings SET SetDefault='' WHERE SetSettingSection='TASKWINDOW' AND SetSettingName='meTop'");
    setValue("TASKWINDOW", "meTop", "0");  // 0 is kept: only below zero falls back
    exec("DELETE FROM Settings WHERE SetSettingSection='OutlookProfileString'");
    setValue("OutLookIntegration", "Integrate Outlook Tasks", "True");
    ASSERT_TRUE(LoadSettings());
    EXPECT_TRUE(reporter().faults().empty());
    EXPECT_EQ(g().TASWindow[0], 1000);
    EXPECT_EQ(g().TaskWindow[0], 0);
    ASSERT_EQ(g().StatusList.size(), 7u);
    EXPECT_EQ(g().StatusList[1], "In Progress");  // the default
    EXPECT_EQ(g().StatusList[2], "Paused");
    EXPECT_EQ(g().StatusList[6], "");
    EXPECT_EQ(g().ImportanceList[1], "High");
    EXPECT_EQ(g().OutlookProfile, "NONE");
    EXPECT_TRUE(g().OutlookIntegrationOn);
}

TEST_F(SettingsTest, SaveWritesGeometryButNoNegativeTasValue) {
    ASSERT_TRUE(LoadSettings());
    g().TASWindow = {10, -7, 8400, 6300, 2000, 2};
    g().TaskWindow = {20, 30, 8500, 6000, 1, 0};
    g().ETaskWindow = {40, 50, 9000, 7000, 0, 0};
    exec("INSERT INTO Settings (SetUser, SetSettingSection, SetSettingName, SetSettingValue, SetDefault, "
         "setSettingDisplayOrd) VALUES ('1','ETASKSettings','meTop','1','1',1)");
    ASSERT_TRUE(SaveSettings());
    EXPECT_TRUE(reporter().faults().empty());
    EXPECT_EQ(value("TAS", "meLeft"), "10");  // the appointment window keeps left first
    EXPECT_EQ(value("TAS", "meTop"), "2000");  // the negative one stays unwritten
    EXPECT_EQ(value("TAS", "WindowState"), "2");
    EXPECT_EQ(value("TASKWINDOW", "WindowState"), "1");
    EXPECT_EQ(value("ETASK", "meHeight"), "7000");
    EXPECT_EQ(value("ETASK", "meSplit"), "0");  // by position: the sixth value
    EXPECT_EQ(value("ETASKSettings", "meTop"), "40");

    ASSERT_TRUE(LoadSettings());
    EXPECT_EQ(g().TASWindow, (std::array<int32_t, 6>{10, 2000, 8400, 6300, 2000, 2}));
    EXPECT_EQ(g().TaskWindow[4], 1);

    // A negative value in another section is written, and falls back at the next load.
    g().TaskWindow[0] = -5;
    ASSERT_TRUE(SaveSettings());
    EXPECT_EQ(value("TASKWINDOW", "meTop"), "-5");
}

TEST_F(SettingsTest, FailuresStopTheLoadWhereTheyHappen) {
    exec("INSERT INTO Settings (SetUser, SetSettingSection, SetSettingName, SetSettingValue, SetDefault, "
         "setSettingDisplayOrd) VALUES ('1','UserStuff','Extra','x','',7)");
    EXPECT_FALSE(LoadSettings());
    expectOneFault(err::SubscriptOutOfRange);
    EXPECT_TRUE(g().StatusList.empty());  // not reached

    reporter().clear();
    exec("DELETE FROM Settings WHERE SetSettingSection='UserStuff' AND SetSettingName='Extra'");
    exec("DELETE FROM Settings WHERE SetSettingSection='Status' AND SetSettingName<>'STATUS5'");
    EXPECT_FALSE(LoadSettings());  // one row sized, STATUS5 out of range
    expectOneFault(err::SubscriptOutOfRange);

    reporter().clear();
    exec("DELETE FROM Settings WHERE SetSettingSection='Status'");
    setValue("Points", "Short", "many");
    EXPECT_FALSE(LoadSettings());
    expectOneFault(err::TypeMismatch);
    EXPECT_EQ(g().PointsTable[9], 2);  // the rows before it were read

    reporter().clear();
    exec("DELETE FROM Settings WHERE SetSettingSection='AppVersion'");
    EXPECT_FALSE(LoadSettings());  // no row: the empty text is no number
    expectOneFault(err::TypeMismatch);
}

}  // namespace
}  // namespace qv
