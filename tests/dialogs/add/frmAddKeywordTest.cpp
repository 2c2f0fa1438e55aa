#include <memory>
#include <string>
#include <vector>

#include "dialogs/add/frmAddKeyword.h"
#include "support/TestEnv.h"
#include "toolkit/Ui.h"

namespace qv {
namespace {

class AddKeywordTest : public TestEnv {
protected:
    void SetUp() override {
        TestEnv::SetUp();
        dlg = std::make_shared<frmAddKeyword>();
        dlg->load();
        dlg->KeywordAdded.connect([this] { ++added; });
    }

    Sheet& fields() { return *dlg->sheet("smtKeywords"); }
    Sheet& actions() { return *dlg->sheet("smtAction"); }
    Tool& category() { return fields().tool("CATEGORY"); }
    Tool& keyword() { return fields().tool("KEYWORD"); }
    void type(Tool& t, const std::string& value) { fields().userEdit(t, value); }
    std::vector<std::string> categoryList() {
        std::vector<std::string> out;
        for (const auto& item : category().items()) out.push_back(item->caption());
        return out;
    }
    void add(const std::string& cat, const std::string& word) {
        type(category(), cat);
        type(keyword(), word);
        scriptedUi().queueAnswer(vbOK);
        actions().click(actions().tool("ADD"));
    }
    int64_t rows(const std::string& cat, const std::string& word) {
        return readInt("SELECT COUNT(*) FROM KEYWORDS WHERE keySubject = '" + cat + "' AND keyKeyword = '" +
                       word + "'");
    }

    std::shared_ptr<frmAddKeyword> dlg;
    int added = 0;
};

TEST_F(AddKeywordTest, CategoriesListEachSubjectOnceInOrder) {
    EXPECT_TRUE(dlg->LoadCategories());
    EXPECT_TRUE(categoryList().empty());
    exec(
        "INSERT INTO KEYWORDS VALUES ('A', 'Work', 'Email'), ('B', 'Home', 'Garden'), ('C', 'Work', "
        "'Calls')");
    EXPECT_TRUE(dlg->LoadCategories());
    EXPECT_EQ(categoryList(), (std::vector<std::string>{"Home", "Work"}));
    fields().click(*category().items()[1]);
    EXPECT_EQ(category().text(), "Work");
}

TEST_F(AddKeywordTest, AddedKeywordIsStoredTrimmedAndTheCategoryStays) {
    exec("INSERT INTO KEYWORDS VALUES ('A', 'Home', 'Garden')");
    dlg->LoadCategories();
    add(" Work ", "Email ");
    EXPECT_EQ(scriptedUi().lastMessage().text, "Keyword \"Email \" created.");
    EXPECT_EQ(added, 1);
    EXPECT_EQ(rows("Work", "Email"), 1);
    EXPECT_EQ(readOne("SELECT keyGUIDID FROM KEYWORDS WHERE keyKeyword = 'Email'").size(), 36u);
    EXPECT_EQ(keyword().text(), "");
    EXPECT_EQ(category().text(), " Work ");

    // The next keyword goes into the same category by Enter alone.
    type(keyword(), "Calls");
    scriptedUi().queueAnswer(vbOK);
    dlg->keyDown(vbKeyReturn);
    EXPECT_EQ(added, 2);
    EXPECT_EQ(rows("Work", "Calls"), 1);
    // The list is not reloaded: the new category shows at the next opening.
    EXPECT_EQ(categoryList(), std::vector<std::string>{"Home"});
    EXPECT_TRUE(reporter().faults().empty());
}

TEST_F(AddKeywordTest, DuplicateTestIsExactAndTrimmed) {
    exec("INSERT INTO KEYWORDS VALUES ('A', 'Work', 'Email')");
    add("Work", "Email ");
    EXPECT_EQ(scriptedUi().lastMessage().text, "That Keyword already exists.");
    EXPECT_EQ(keyword().text(), "");
    EXPECT_EQ(added, 0);
    EXPECT_EQ(rows("Work", "Email"), 1);
    // Another case or another category is a new keyword.
    add("Work", "email");
    add("Home", "Email");
    EXPECT_EQ(added, 2);
    EXPECT_EQ(readInt("SELECT COUNT(*) FROM KEYWORDS"), 3);
    EXPECT_TRUE(reporter().faults().empty());
}

TEST_F(AddKeywordTest, EmptyFieldsAreRefusedWithTheKeptMessages) {
    add("Work", "");
    EXPECT_EQ(scriptedUi().lastMessage().text, "Enter a new Keyword.");
    EXPECT_EQ(scriptedUi().lastMessage().style, vbOKOnly + vbInformation);
    add("", "Email");
    EXPECT_EQ(scriptedUi().lastMessage().text, "Select or enter a new Keyword.");
    EXPECT_EQ(keyword().text(), "Email");
    // Spaces alone pass and write an empty keyword.
    add("Work", "   ");
    EXPECT_EQ(rows("Work", ""), 1);
    EXPECT_EQ(added, 1);
    EXPECT_TRUE(reporter().faults().empty());
}

TEST_F(AddKeywordTest, DoneAndEscapeCloseWithoutAQuestion) {
    auto& ui = scriptedUi();
    ui.queueAction([&] {
        type(keyword(), "Unsaved");
        actions().click(actions().tool("OK"));
    });
    dlg->showModal();
    EXPECT_FALSE(dlg->loaded());

    auto other = std::make_shared<frmAddKeyword>();
    ui.queueAction([&] { other->keyDown(vbKeyEscape); });
    other->showModal();
    EXPECT_FALSE(other->loaded());
    EXPECT_TRUE(ui.messages().empty());
}

TEST_F(AddKeywordTest, StoreFaultTakesTheErrorPath) {
    int exits = 0;
    dlg->GotErrExitNow.connect([&] { ++exits; });
    exec("DROP TABLE KEYWORDS");
    EXPECT_FALSE(dlg->LoadCategories());
    type(category(), "Work");
    type(keyword(), "Email");
    EXPECT_FALSE(dlg->validateNew());
    EXPECT_FALSE(dlg->createNewKeyword());
    EXPECT_EQ(reporter().faults().size(), 3u);
    EXPECT_EQ(exits, 3);
    EXPECT_EQ(added, 0);
}

}  // namespace
}  // namespace qv
