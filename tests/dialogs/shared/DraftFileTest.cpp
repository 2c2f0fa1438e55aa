// The draft file: byte-for-byte texts, one file per store, mode and task;
// a file that does not read back whole is ignored and removed.

#include <filesystem>

#include "dialogs/shared/DraftFile.h"
#include "support/TestEnv.h"

namespace qv {
namespace {

namespace fs = std::filesystem;

class DraftFileTest : public TestEnv {
protected:
    const DraftKey key{"/home/u/QuorvelData.mdb", 1, "99999999-0000-0000-0000-000000000009"};
};

TEST_F(DraftFileTest, TextsComeBackByteForByteAndTheFileIsTheUsersOwn) {
    const std::string hostile = std::string("line one\nline two\r\n\t%41 100% ") + '\0' + "\x7f\xff\xfe end";
    const Draft draft{key,
                      46350.8125,
                      {{"editor:spellTask", "Paint the fence", hostile},
                       {"text:smtABOUT.DEADTIME", "", "12:00"},
                       {"pick:smtKeywords.K 1", "0", "1"},
                       {"editor:SpellNotes", hostile, ""}}};
    ASSERT_TRUE(DraftFile::write(draft));
    const auto back = DraftFile::read(key);
    ASSERT_TRUE(back.has_value());
    EXPECT_EQ(back->changes, draft.changes);
    EXPECT_DOUBLE_EQ(back->savedAt, draft.savedAt);
    EXPECT_EQ(DraftFile::folder(), folder() + "/state/quorvel/drafts");
    EXPECT_EQ(fs::status(DraftFile::folder()).permissions() & fs::perms::all, fs::perms::owner_all);
    // No temporary file is left beside it.
    EXPECT_EQ(std::distance(fs::directory_iterator(DraftFile::folder()), fs::directory_iterator{}), 1);
    DraftFile::remove(key);
    EXPECT_FALSE(DraftFile::read(key).has_value());
}

TEST_F(DraftFileTest, EachStoreModeAndTaskHasItsOwnDraft) {
    const DraftKey others[] = {{"/home/u/other/QuorvelData.mdb", 1, key.task},
                               {"postgresql:///quorvel?host=/tmp", 1, key.task},
                               {key.store, 5, key.task},
                               {key.store, 1, "99999999-0000-0000-0000-000000000008"},
                               {key.store, 0, ""}};
    ASSERT_TRUE(DraftFile::write({key, 1.0, {{"editor:spellTask", "a", "b"}}}));
    for (const auto& other : others) {
        SCOPED_TRACE(other.store + " " + std::to_string(other.mode) + " " + other.task);
        EXPECT_NE(DraftFile::pathFor(other), DraftFile::pathFor(key));
        EXPECT_FALSE(DraftFile::read(other).has_value());
        // Even a file of the other's name holding this draft is not taken for it.
        fs::copy_file(DraftFile::pathFor(key), DraftFile::pathFor(other));
        EXPECT_FALSE(DraftFile::read(other).has_value());
        EXPECT_FALSE(fs::exists(DraftFile::pathFor(other)));
    }
    EXPECT_TRUE(DraftFile::read(key).has_value());
}

TEST_F(DraftFileTest, ADamagedFileIsIgnoredAndRemoved) {
    const std::string good = DraftFile::encode({key, 2.5, {{"editor:spellTask", "a", "b c"}}});
    const std::string damaged[] = {
        "",
        std::string(3000, '\x5a'),
        good.substr(0, good.size() - 7),  // cut short: no end
        good + "change =x =y =z\n",       // more after the end
        [&] {
            auto t = good;
            t.replace(t.find("end 1"), 5, "end 2");
            return t;
        }(),
        [&] {
            auto t = good;
            t.replace(t.find("=b%20c"), 6, "=b%2");
            return t;
        }(),  // a broken escape
        [&] {
            auto t = good;
            t.replace(t.find("=b%20c"), 6, "b%20c");
            return t;
        }(),  // no marker
        [&] {
            auto t = good;
            t.replace(t.find("saved 2.5"), 9, "saved x");
            return t;
        }(),
        [&] {
            auto t = good;
            t.replace(0, 15, "quorvel-draft 9");
            return t;
        }(),
        [&] {
            auto t = good;
            t.replace(t.find("mode 1"), 6, "mode 5");
            return t;
        }(),
        [&] {
            auto t = good;
            t.replace(t.find("=editor:spellTask"), 17, "=");
            return t;
        }(),  // no field
    };
    for (const auto& text : damaged) {
        SCOPED_TRACE(text);
        fs::create_directories(DraftFile::folder());
        writeFile(DraftFile::pathFor(key), text);
        EXPECT_FALSE(DraftFile::read(key).has_value());
        EXPECT_FALSE(fs::exists(DraftFile::pathFor(key)));
    }
    writeFile(DraftFile::pathFor(key), good);
    EXPECT_TRUE(DraftFile::read(key).has_value());
}

}  // namespace
}  // namespace qv
