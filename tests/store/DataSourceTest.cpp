#include <filesystem>

#include "session/globals/SessionGlobals.h"
#include "store/DataSource.h"
#include "store/clsNewTask.h"
#include "store/clsSettings.h"
#include "store/clsStatusList.h"
#include "support/TestEnv.h"
#include "toolkit/Failure.h"

namespace qv {
namespace {

constexpr const char* kStatusQuery =
    "SELECT * from Settings WHERE SetUser='1' and SetSettingSection = 'Status' ORDER BY setSettingDisplayOrd";

class StoreNotYetLocated : public TestEnv {
protected:
    StoreNotYetLocated() : TestEnv({.store = true, .settingsFile = false}) {}
};

class NotAStore : public TestEnv {
protected:
    NotAStore() : TestEnv({.store = false, .settingsFile = true}) {}
};

TEST_F(StoreNotYetLocated, TheStoreIsLocatedOnlyWhileConnStringIsEmpty) {
    g().ConnString = "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + storePath() + ";";
    clsStatusList statuses;
    statuses.SetSQL(kStatusQuery);
    RecordsetPtr rst;
    EXPECT_TRUE(statuses.GetDataKEY(rst));
    ASSERT_TRUE(rst);
    EXPECT_EQ(statuses.GetRowCount(), 6);
    EXPECT_FALSE(std::filesystem::exists(settingsPath()));

    g().ConnString.clear();
    RecordsetPtr second;
    EXPECT_TRUE(statuses.GetDataKEY(second));
    EXPECT_TRUE(std::filesystem::exists(settingsPath()));
    EXPECT_EQ(g().DBLocation, storePath());
    // The caller keeps the first set; the class moved on to the second.
    EXPECT_NE(rst, second);
    EXPECT_EQ(rst->State(), adStateOpen);
    EXPECT_TRUE(reporter().faults().empty());
}

TEST_F(NotAStore, OpeningAFileThatIsNoStoreGoesDownTheErrorPath) {
    const std::string junk = "these are not the rows you are looking for";
    writeFile(storePath(), junk);
    clsSettings settings;
    int exits = 0;
    settings.setTempErrReport(&reporter());
    settings.GotErrExitNow.connect([&] { ++exits; });
    settings.SetSQL(kStatusQuery);

    RecordsetPtr rst = std::make_shared<Recordset>();
    EXPECT_FALSE(settings.GetData(rst));
    EXPECT_FALSE(rst);
    ASSERT_EQ(reporter().faults().size(), 1u);
    const auto& fault = reporter().faults()[0];
    EXPECT_EQ(fault.project + "." + fault.module + "." + fault.procedure, "QuorvelTask2.clsSettings.GetData");
    EXPECT_NE(fault.description.find("is not a Quorvel data file"), std::string::npos) << fault.description;
    EXPECT_NE(fault.description.find(storePath()), std::string::npos) << fault.description;
    EXPECT_EQ(fault.number, err::StoreFailure);
    EXPECT_EQ(exits, 1);
    EXPECT_EQ(readFile(storePath()), junk);
    // The caller's next step fails the same way, and nothing breaks.
    EXPECT_EQ(settings.GetRowCount(), 0);
    EXPECT_EQ(reporter().faults().size(), 2u);
}

TEST_F(TestEnv, BindingGivesTheSetOnlyForTheExactMemberName) {
    clsStatusList statuses;
    statuses.SetSQL(kStatusQuery);
    RecordsetPtr data = std::make_shared<Recordset>();
    statuses.Class_GetDataMember("recordset", data);
    EXPECT_FALSE(data);

    statuses.Class_GetDataMember("Recordset", data);
    ASSERT_TRUE(data);
    RecordsetPtr again;
    statuses.Class_GetDataMember("Recordset", again);
    EXPECT_EQ(again, data);
    EXPECT_EQ(statuses.GetRowCount(), 6);
    EXPECT_TRUE(reporter().faults().empty());
}

TEST_F(TestEnv, StatusListSetsRefuseWrites) {
    clsStatusList statuses;
    statuses.SetSQL(kStatusQuery);
    RecordsetPtr rst;
    ASSERT_TRUE(statuses.GetDataKEY(rst));
    EXPECT_ANY_THROW({
        rst->Fields("SetSettingValue") = "Finished";
        rst->Update();
        rst->UpdateBatch(adAffectAllChapters);
    });
    EXPECT_ANY_THROW({
        rst->AddNew();
        rst->Fields("SetSettingName") = "STATUS7";
        rst->Update();
        rst->UpdateBatch(adAffectAllChapters);
    });
    EXPECT_EQ(readOne("SELECT SetSettingValue FROM Settings WHERE SetSettingName='STATUS1'"), "Completed");
    EXPECT_EQ(readInt("SELECT COUNT(*) FROM Settings WHERE SetSettingSection='Status'"), 6);
}

TEST_F(TestEnv, NewRowsGoThroughTheEmptySet) {
    clsNewTask tasks;
    tasks.SetSQL("SELECT * from TASKS WHERE tskImp= 6");
    tasks.SetSQLKey("SELECT * from TASKS WHERE tskGUIDID = 'K1'");
    RecordsetPtr rst;
    ASSERT_TRUE(tasks.GetData(rst));
    EXPECT_EQ(tasks.GetRowCount(), 0);
    rst->AddNew();
    rst->Fields("tskGUIDID") = "K1";
    rst->Fields("tskDesc") = "Write the report";
    rst->Update();
    rst->UpdateBatch(adAffectAllChapters);
    EXPECT_TRUE(tasks.UpdateRST());

    RecordsetPtr byKey;
    ASSERT_TRUE(tasks.GetDataKEY(byKey));
    EXPECT_EQ(tasks.GetRowCount(), 1);
    EXPECT_EQ(byKey->Fields("tskDesc").value().toText(), "Write the report");
    EXPECT_TRUE(reporter().faults().empty());

    clsNewTask fresh;
    EXPECT_FALSE(fresh.UpdateRST());
    ASSERT_EQ(reporter().faults().size(), 1u);
    EXPECT_EQ(reporter().faults()[0].module + "." + reporter().faults()[0].procedure, "clsNewTask.UpdateRST");
    EXPECT_EQ(reporter().faults()[0].number, err::ObjectRequired);
}

}  // namespace
}  // namespace qv
