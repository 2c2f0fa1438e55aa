#include <gtest/gtest.h>

#include "support/FailureOf.h"
#include "toolkit/Sheet.h"

namespace qv {

TEST(Sheet, OptionsAreExclusiveAndClicksReachTheHandlers) {
    Sheet s("smtImp", "Importance");
    for (int i = 0; i < 3; ++i) s.add(ttOption, "IMP-" + std::to_string(i), "Level " + std::to_string(i));
    std::vector<std::string> clicks;
    s.Click.connect([&](Tool& t) { clicks.push_back(t.key()); });

    s.click(s.tool("IMP-1"));
    s.click(s.tool("IMP-2"));
    EXPECT_FALSE(s.tool("IMP-1").checked());
    EXPECT_TRUE(s.tool("IMP-2").checked());
    s.click(s.tool("IMP-2"));  // the chosen one again: still a click
    EXPECT_TRUE(s.tool("IMP-2").checked());
    EXPECT_EQ(clicks, (std::vector<std::string>{"IMP-1", "IMP-2", "IMP-2"}));

    // A disabled tool or sheet swallows the click.
    s.tool("IMP-0").setEnabled(false);
    s.click(s.tool("IMP-0"));
    s.setEnabled(false);
    s.click(s.tool("IMP-1"));
    EXPECT_EQ(clicks.size(), 3u);
    EXPECT_TRUE(s.tool("IMP-2").checked());
}

TEST(Sheet, ChecksToggleAndTextEditsRaiseChange) {
    Sheet s("smtOther");
    Tool& current = s.add(ttCheck, "ISCURRENT", "Current Task");
    Tool& time = s.add(ttTextBox, "DEADTIME", "Time:");
    int clicks = 0;
    std::vector<std::string> changes;
    s.Click.connect([&](Tool&) { ++clicks; });
    s.Change.connect([&](Tool& t, const std::string& prop) { changes.push_back(t.key() + "." + prop); });

    s.click(current);
    EXPECT_TRUE(current.checked());
    s.click(current);
    EXPECT_FALSE(current.checked());
    EXPECT_EQ(clicks, 2);

    s.userEdit(time, "9:30");
    s.userEdit(time, "9:30");  // same text: no change
    time.setText("");          // the program's change is a change too
    EXPECT_EQ(changes, (std::vector<std::string>{"DEADTIME.Value", "DEADTIME.Value"}));
}

TEST(Sheet, LookupsByKeyAndPositionFailClearly) {
    Sheet s("smtOther");
    Tool& status = s.add(ttButton, "STATUS");
    status.addItem(ttOption, "STATUS-0", "Completed");
    s.add(ttSeparator);
    s.add(ttButton, "CLEARDEAD", "Clear Deadline");

    EXPECT_EQ(s.count(), 3);
    EXPECT_EQ(&s.at(1), &status);
    EXPECT_EQ(s.at(3).key(), "CLEARDEAD");
    EXPECT_EQ(s.lastAdded()->key(), "CLEARDEAD");
    EXPECT_TRUE(s.hasKey("STATUS-0")) << "sub-items are found by key too";
    EXPECT_FALSE(s.hasKey(""));
    EXPECT_EQ(s.find("NOPE"), nullptr);

    EXPECT_EQ(failureOf([&] { (void)s.at(4); }).number(), 35600);
    EXPECT_THROW((void)s.at(0), Failure);
    EXPECT_THROW((void)s.tool("NOPE"), Failure);
    EXPECT_THROW(s.add(ttButton, "STATUS"), Failure) << "keys are unique";
    EXPECT_THROW(s.remove("NOPE"), Failure);

    s.remove("CLEARDEAD");
    EXPECT_EQ(s.lastAdded(), nullptr);
    EXPECT_EQ(s.count(), 2);
    s.removeAll();
    EXPECT_EQ(s.count(), 0);
}

// Tools come and go from the sheet's own storage: a key that went can come
// back, a refused key leaves the sheet as it was, and no lookup finds a tool
// that has gone.
TEST(Sheet, KeysFollowToolsThatComeAndGo) {
    Sheet s("smtKeywords");
    Tool& list = s.add(ttButton, "LIST");
    list.addItem(ttOption, "A", "Alpha");
    EXPECT_THROW(list.addItem(ttOption, "LIST", "Again"), Failure) << "an item cannot take a tool's key";
    EXPECT_THROW(s.add(ttCheck, "A"), Failure) << "nor a tool an item's";
    EXPECT_EQ(list.items().size(), 1u);
    EXPECT_EQ(s.count(), 1);
    EXPECT_EQ(s.lastAdded(), &list);

    list.clearItems();
    EXPECT_EQ(s.find("A"), nullptr);
    Tool& a = s.add(ttCheck, "A", "Alpha");
    EXPECT_EQ(s.find("A"), &a);

    s.remove("LIST");
    EXPECT_EQ(s.find("LIST"), nullptr);
    for (int round = 0; round < 3; ++round) {
        s.removeAll();
        for (int i = 0; i < 100; ++i) s.add(ttCheck, "K" + std::to_string(i) + "-0000-0000-0000-000000000000");
        EXPECT_EQ(s.count(), 100);
        EXPECT_EQ(s.find("K42-0000-0000-0000-000000000000"), &s.at(43));
        EXPECT_EQ(s.find("A"), nullptr);
    }
}

}  // namespace qv
