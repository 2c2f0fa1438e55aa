#include "installer/HelpPages.h"

#include <gtest/gtest.h>

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>

#include "help/HelpTopics.h"
#include "installer/StoreInstaller.h"

namespace fs = std::filesystem;

namespace qv {
namespace {

const fs::path kShipped = fs::path(QV_SOURCE_DIR) / "share" / "help";

std::string slurp(const fs::path& p) {
    std::ifstream in(p, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

struct TempFolder {
    TempFolder() {
        std::string t = (fs::temp_directory_path() / "quorvel-help-XXXXXX").string();
        if (!mkdtemp(t.data())) throw std::runtime_error("no temporary folder");
        path = t;
    }
    ~TempFolder() {
        std::error_code ec;
        fs::remove_all(path, ec);
    }
    fs::path path;
};

// Every page the topic table names ships, and every link between the pages
// leads to a page that ships.
TEST(HelpPages, EveryTopicHasAPageAndEveryLinkLands) {
    for (const std::string& file : HelpTopics::pageFiles()) {
        const fs::path page = kShipped / file;
        ASSERT_TRUE(fs::exists(page)) << file;
        const std::string text = slurp(page);
        EXPECT_NE(text.find("<h1>"), std::string::npos) << file;
        const std::regex link(R"(href="([^"#]+))");
        for (auto it = std::sregex_iterator(text.begin(), text.end(), link); it != std::sregex_iterator(); ++it)
            EXPECT_TRUE(fs::exists(kShipped / (*it)[1].str())) << file << " links to " << (*it)[1];
    }
    EXPECT_EQ(helpPagesSource(), kShipped.string());
}

TEST(HelpPages, FirstRunInstallsMissingPagesAndKeepsTheUsersOwn) {
    TempFolder home;
    fs::create_directories(home.path / "help");
    std::ofstream(home.path / "help" / "POP-KEYWORDS.htm") << "my own notes";
    installApplicationFolder(home.path.string());
    EXPECT_EQ(slurp(home.path / "help" / "POP-KEYWORDS.htm"), "my own notes");
    for (const std::string& file : HelpTopics::pageFiles()) EXPECT_TRUE(fs::exists(home.path / "help" / file)) << file;

    fs::remove(home.path / "help" / "QV-TOUR1.htm");
    EXPECT_EQ(installHelpPages(home.path.string(), kShipped.string()), 1);
    EXPECT_EQ(installHelpPages(home.path.string(), kShipped.string()), 0);
    EXPECT_EQ(installHelpPages(home.path.string(), (home.path / "nowhere").string()), 0);
}

}  // namespace
}  // namespace qv
