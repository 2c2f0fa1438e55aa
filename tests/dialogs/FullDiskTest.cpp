// A program's folder on a full disk (a small tmpfs, mounted as root): each
// fault says the disk is full, in one report and no other message.

#include <sys/mount.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>

#include "dialogs/existingtask/ExistingTaskFixture.h"
#include "session/globals/SessionGlobals.h"
#include "store/Connection.h"
#include "support/ScopedEnv.h"

namespace qv {

namespace {

namespace fs = std::filesystem;

class FullDisk : public ExistingTaskFixture {
protected:
    void SetUp() override {
        if (onServerStore()) GTEST_SKIP() << "about the store file";
        if (::geteuid() != 0) GTEST_SKIP() << "mounting a small disk needs root";
        std::string pattern = (fs::temp_directory_path() / "qv-full-XXXXXX").string();
        ASSERT_NE(::mkdtemp(pattern.data()), nullptr);
        mount_ = pattern;
        if (::mount("tmpfs", mount_.c_str(), "tmpfs", 0, "size=4m") != 0) {
            fs::remove(mount_);
            mount_.clear();
            GTEST_SKIP() << "no tmpfs could be mounted";
        }
        env_.set("TMPDIR", mount_.c_str());
        ExistingTaskFixture::SetUp();
        seed();
        addTask();
    }
    void TearDown() override {
        if (mount_.empty()) return;
        ExistingTaskFixture::TearDown();
        ::umount2(mount_.c_str(), MNT_DETACH);
        fs::remove(mount_);
    }

    // Writes a filler file until the disk refuses.
    void fill() const {
        std::ofstream out(mount_ + "/filler", std::ios::binary);
        const std::string block(64 * 1024, 'x');
        while (out.write(block.data(), static_cast<std::streamsize>(block.size())) && out.flush()) {
        }
        const std::string byte(1, 'x');
        while (out.write(byte.data(), 1) && out.flush()) {
        }
    }

    // The one report of the run says the disk is full and no library or engine words.
    void expectDiskFull(const std::string& names) {
        ASSERT_EQ(reporter().faults().size(), 1u);
        const std::string& d = reporter().faults()[0].description;
        EXPECT_NE(d.find("the disk is full"), std::string::npos) << d;
        EXPECT_NE(d.find(names), std::string::npos) << d;
        EXPECT_EQ(d.find("disk I/O error"), std::string::npos) << d;
        for (const auto& m : scriptedUi().messages()) {
            EXPECT_EQ(m.text.find("could not be found"), std::string::npos) << m.text;
            EXPECT_EQ(m.text.find("is missing"), std::string::npos) << m.text;
        }
    }

    std::string mount_;
    ScopedEnv env_;
};

}  // namespace

TEST_F(FullDisk, ASaveSaysTheStoreCantGrow) {
    // Written through the store once, so the journal stands before the disk fills.
    then([this] { eform().hide(); });
    openTask();
    then([this] {
        fill();
        eform().editor("SpellNotes")->userEdit(std::string(256 * 1024, 'n'));
    });
    click("smtActions", "UPDATE");
    openTask();
    expectDiskFull(storePath());
}

TEST_F(FullDisk, ASettingsFileThatCantBeRewrittenSaysSo) {
    fs::remove(settingsPath());
    Connection::releaseAll();
    g().ConnString.clear();
    fill();
    openTask();
    expectDiskFull("QuorvelSettings.txt");
    EXPECT_TRUE(scriptedUi().messages().empty()) << scriptedUi().messages().front().text;
}

TEST_F(FullDisk, OpeningAStoreWithoutItsJournalSaysTheDiskIsFull) {
    Connection::releaseAll();
    for (const char* suffix : {"-wal", "-shm"}) fs::remove(storePath() + suffix);
    fill();
    then([this] { eform().hide(); });
    openTask();
    // Opening only reads; where the engine needs room for its journal the report says so.
    if (!reporter().faults().empty()) expectDiskFull(storePath());
}

}  // namespace qv
