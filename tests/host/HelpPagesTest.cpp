#include "installer/HelpPages.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>

#include "help/HelpTopics.h"
#include "installer/StoreInstaller.h"
#include "support/TestEnv.h"

namespace fs = std::filesystem;

namespace qv {
namespace {

const fs::path kShipped = fs::path(QV_SOURCE_DIR) / "share" / "help";

class HelpPages : public TestEnv {
protected:
    HelpPages() : TestEnv({.store = false, .settingsFile = false}) {}
    // A page has its heading, and each link lands in one of the two folders.
    static void expectHeadedAndLinksLand(const fs::path& page, const fs::path& own, const fs::path& english) {
        const std::string text = readFile(page);
        EXPECT_NE(text.find("<h1>"), std::string::npos) << page;
        const std::regex link(R"(href="([^"#]+))");
        for (auto it = std::sregex_iterator(text.begin(), text.end(), link); it != std::sregex_iterator(); ++it) {
            const std::string to = (*it)[1].str();
            EXPECT_TRUE(fs::exists(own / to) || fs::exists(english / to)) << page << " links to " << to;
        }
    }
};

// Every page the topic table names ships, and every link between the pages
// leads to a page that ships.
TEST_F(HelpPages, EveryTopicHasAPageAndEveryLinkLands) {
    for (const std::string& file : HelpTopics::pageFiles()) {
        const fs::path page = kShipped / file;
        ASSERT_TRUE(fs::exists(page)) << file;
        expectHeadedAndLinksLand(page, kShipped, kShipped);
    }
    EXPECT_EQ(helpPagesSource(), kShipped.string());
}

// A language folder holds translations of shipped pages, under their English
// names, and each of their links lands on a page of that language or, for
// one not translated, on the English page.
TEST_F(HelpPages, EveryTranslatedPageHasItsEnglishPageAndItsLinksLand) {
    int translated = 0;
    for (const auto& folder : fs::directory_iterator(kShipped)) {
        if (!folder.is_directory()) continue;
        for (const auto& entry : fs::directory_iterator(folder.path())) {
            const std::string file = entry.path().filename().string();
            EXPECT_TRUE(fs::exists(kShipped / file)) << folder.path().filename() << "/" << file;
            expectHeadedAndLinksLand(entry.path(), folder.path(), kShipped);
            ++translated;
        }
    }
    EXPECT_GE(translated, 28);
}

TEST_F(HelpPages, FirstRunInstallsMissingPagesAndKeepsTheUsersOwn) {
    const fs::path home = folder();
    fs::create_directories(home / "help");
    std::ofstream(home / "help" / "POP-KEYWORDS.htm") << "my own notes";
    installApplicationFolder(home.string());
    EXPECT_EQ(readFile(home / "help" / "POP-KEYWORDS.htm"), "my own notes");
    for (const std::string& file : HelpTopics::pageFiles()) {
        EXPECT_TRUE(fs::exists(home / "help" / file)) << file;
        EXPECT_TRUE(fs::exists(home / "help" / "de" / file)) << file;
    }

    fs::remove(home / "help" / "QV-TOUR1.htm");
    EXPECT_EQ(installHelpPages(home.string(), kShipped.string()), 1);
    EXPECT_EQ(installHelpPages(home.string(), kShipped.string()), 0);
    EXPECT_EQ(installHelpPages(home.string(), (home / "nowhere").string()), 0);
}

}  // namespace
}  // namespace qv
