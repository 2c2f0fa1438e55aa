#include "help/HelpLanguages.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>

#include "help/frmPopHelp.h"
#include "support/ScopedEnv.h"
#include "support/TestEnv.h"

namespace fs = std::filesystem;

namespace qv {
namespace {

// The languages of the help pages are the interface's, read as gettext reads them.
TEST(HelpLanguages, ComeFromTheMessagesLocale) {
    struct Case {
        const char *all, *messages, *lang, *language;
        std::vector<std::string> want;
    };
    const Case cases[] = {
        {nullptr, nullptr, "de_DE.UTF-8", nullptr, {"de_DE", "de"}},
        {nullptr, "fr_CA.UTF-8@x", "de_DE.UTF-8", nullptr, {"fr_CA", "fr"}},
        {"pt_BR", "fr_FR", "de_DE", nullptr, {"pt_BR", "pt"}},
        {nullptr, nullptr, "en_US.UTF-8", "de:fr_FR", {"de", "fr_FR", "fr", "en_US", "en"}},
        {nullptr, nullptr, "C.UTF-8", "de", {}},
        {"POSIX", nullptr, "de_DE", nullptr, {}},
        {nullptr, nullptr, nullptr, nullptr, {}}};
    for (const Case& c : cases) {
        ScopedEnv env;
        env.set("LC_ALL", c.all).set("LC_MESSAGES", c.messages).set("LANG", c.lang).set("LANGUAGE", c.language);
        EXPECT_EQ(HelpLanguages::fromEnvironment(), c.want) << (c.lang ? c.lang : "-");
    }
}

class LanguagePages : public TestEnv {
protected:
    LanguagePages() : TestEnv({.store = false, .settingsFile = false}) {}
    void SetUp() override {
        TestEnv::SetUp();
        help = folder() + "/help/";
        for (const char* page : {"helpindex.htm", "POP-KEYWORDS.htm", "POP-TASKCAT.htm", "strategies.htm"})
            write(help + page);
        for (const char* page : {"helpindex.htm", "POP-KEYWORDS.htm", "strategies.htm"}) write(help + "de/" + page);
    }
    static void write(const std::string& path) {
        fs::create_directories(fs::path(path).parent_path());
        std::ofstream(path) << "<h1>page</h1>";
    }
    std::shared_ptr<frmPopHelp> popIn(const char* lang) {
        env.set("LC_ALL", nullptr).set("LC_MESSAGES", nullptr).set("LANGUAGE", nullptr).set("LANG", lang);
        return std::make_shared<frmPopHelp>();
    }

    ScopedEnv env;
    std::string help;
};

// Each page in the user's language where it has one, else the English
// page: on opening, along links either way, and when printed.
TEST_F(LanguagePages, EachPageInTheUsersLanguageElseInEnglish) {
    const auto de = popIn("de_DE.UTF-8");
    de->Setup(5000);
    EXPECT_EQ(de->browsePWindow.LocationURL(), help + "de/helpindex.htm");
    de->browsePWindow.followed(help + "de/POP-TASKCAT.htm");  // missing in German
    EXPECT_EQ(de->browsePWindow.LocationURL(), help + "POP-TASKCAT.htm");
    de->browsePWindow.followed(help + "strategies.htm#goals");  // a link of the English page
    EXPECT_EQ(de->browsePWindow.LocationURL(), help + "de/strategies.htm#goals");
    EXPECT_EQ(de->MakeHelpHTML().page, help + "de/strategies.htm");
    EXPECT_EQ(de->MakeHelpHTML().baseFolder, help + "de/");
    de->Setup(9);
    EXPECT_EQ(de->browsePWindow.LocationURL(), help + "POP-TASKCAT.htm");
    de->browsePWindow.followed("https://example.org/de/x.htm");  // not a help page
    EXPECT_EQ(de->browsePWindow.LocationURL(), "https://example.org/de/x.htm");

    const auto c = popIn("C.UTF-8");
    c->Setup(8);
    EXPECT_EQ(c->browsePWindow.LocationURL(), help + "POP-KEYWORDS.htm");
    c->browsePWindow.followed(help + "de/strategies.htm");
    EXPECT_EQ(c->browsePWindow.LocationURL(), help + "strategies.htm");
}

}  // namespace
}  // namespace qv
