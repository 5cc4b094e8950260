// What lies in the store's place or beside it, and what becomes of its files while it runs: told, never waited for, and
// never somebody else's to lose.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/store/FaultyDisk.h"
#include "tests/store/StoreFolder.h"

namespace orvelle::store {
namespace {

namespace fs = std::filesystem;

class StoreSurroundingsTest : public testing::Test {
protected:
    void Told(const std::string& words) {
        ASSERT_EQ(folder.Sentences.size(), 1U);
        EXPECT_NE(folder.Sentences[0].find(words), std::string::npos) << folder.Sentences[0];
    }
    void FillAndCopy() {
        folder.Fill();
        auto store = folder.Open();
        folder.Loop.Run(10000);
    }
    mode_t RightsOf(const std::string& name) const {
        struct stat status {};
        EXPECT_EQ(stat(folder.Path(name).c_str(), &status), 0) << name;
        return status.st_mode & 07777;
    }

    FaultyDisk disk;
    StoreFolder folder;
};

TEST_F(StoreSurroundingsTest, ASecondPanelOfTheUserReadsAndDoesNotWrite) {
    auto first = folder.Open();
    first.SaveSettingLong("OrvelleCP", "Left", 7);
    first.HandlerEnded();
    {
        auto second = folder.Open();
        EXPECT_EQ(second.GetSettingLong("OrvelleCP", "Left", 1), 7);
        second.SaveSettingLong("OrvelleCP", "Left", 8);
        second.HandlerEnded();
        EXPECT_EQ(second.GetSettingLong("OrvelleCP", "Left", 1), 8);
    }
    Told("is in use by another panel. Its settings are used, but changes are lost when the panel ends.");
    first.SaveSettingLong("OrvelleCP", "Top", 3);
    first.HandlerEnded();
    EXPECT_EQ(folder.Text("SELECT value FROM setting WHERE name = 'Left'"), "7");
    EXPECT_EQ(folder.Text("SELECT value FROM setting WHERE name = 'Top'"), "3");
    EXPECT_EQ(folder.Sentences.size(), 1U);
}

TEST_F(StoreSurroundingsTest, WithoutALockItIsWrittenAndTold) {
    fs::create_symlink("elsewhere", folder.Path("OrvelleCP.sqlite.lock"));
    folder.Open().SaveSettingLong("OrvelleCP", "Left", 7);
    Told("cannot be locked");
    EXPECT_FALSE(fs::exists(folder.Path("elsewhere")));
    EXPECT_EQ(folder.Open().GetSettingLong("OrvelleCP", "Left", 1), 7);
}

TEST_F(StoreSurroundingsTest, APipeIsNotOpened) {
    FillAndCopy();
    fs::remove(folder.Path());
    ASSERT_EQ(mkfifo(folder.Path().c_str(), 0600), 0);
    EXPECT_EQ(folder.Open().GetSettingLong("OrvelleCP", "Left", 1), 7);
    Told("cannot be used (it is no file). The settings of the last good copy are used");
    EXPECT_TRUE(fs::is_fifo(folder.Path()));
}

TEST_F(StoreSurroundingsTest, APipeInPlaceOfTheLockOrTheCopyIsNotOpened) {
    for (const char* name : {"OrvelleCP.sqlite.lock", "OrvelleCP.sqlite.copy"})
        ASSERT_EQ(mkfifo(folder.Path(name).c_str(), 0600), 0);
    auto store = folder.Open();
    Told("cannot be locked");
}

TEST_F(StoreSurroundingsTest, ALinkToNowhereIsLeftAsItIs) {
    fs::create_symlink(folder.Path("not-mounted/settings"), folder.Path());
    folder.Open().SaveSettingLong("OrvelleCP", "Left", 7);
    Told("it is a link that leads nowhere");
    EXPECT_TRUE(fs::is_symlink(folder.Path()));
}

TEST_F(StoreSurroundingsTest, AFileThatIsDeletedIsWrittenAnew) {
    folder.Fill();
    {
        auto store = folder.Open();
        store.SaveSettingLong("OrvelleCP", "Top", 3);
        store.HandlerEnded();
        for (const char* part : {"", "-wal", "-shm"}) fs::remove(folder.Path(std::string("OrvelleCP.sqlite") + part));
        store.SaveSettingLong("OrvelleCP", "Topmost", 1);
        store.HandlerEnded();
        Told("was deleted while the panel runs, and was written anew");
        store.SaveSettingLong("OrvelleCP", "Width", 5);
        store.HandlerEnded();
    }
    auto store = folder.Open();
    for (const auto& [name, value] : {std::pair{"Left", 7}, {"Top", 3}, {"Topmost", 1}, {"Width", 5}})
        EXPECT_EQ(store.GetSettingLong("OrvelleCP", name, 0), value) << name;
    EXPECT_EQ(folder.Sentences.size(), 1U);
}

TEST_F(StoreSurroundingsTest, AFolderThatIsDeletedIsMadeAnew) {
    {
        auto store = folder.Open("inside/OrvelleCP.sqlite");
        store.SaveSettingLong("OrvelleCP", "Left", 7);
        store.HandlerEnded();
        fs::remove_all(folder.Path("inside"));
        store.SaveSettingLong("OrvelleCP", "Top", 3);
        store.HandlerEnded();
        auto second = folder.Open("inside/OrvelleCP.sqlite");
        EXPECT_NE(folder.Sentences.back().find("is in use by another panel"), std::string::npos);
    }
    EXPECT_EQ(folder.Open("inside/OrvelleCP.sqlite").GetSettingLong("OrvelleCP", "Left", 1), 7);
}

TEST_F(StoreSurroundingsTest, AFileThatIsReplacedIsLeftAsItIs) {
    folder.Fill();
    folder.Open("other.sqlite").SaveSettingLong("OrvelleCP", "Left", 9);
    const std::string other = BytesOf(folder.Path("other.sqlite"));
    {
        auto store = folder.Open();
        fs::rename(folder.Path("other.sqlite"), folder.Path());
        for (Long value = 1; value <= 3; ++value) {
            store.SaveSettingLong("OrvelleCP", "Top", value);
            store.HandlerEnded();
            EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Top", 0), value);
        }
    }
    Told("was replaced by another one while the panel runs");
    EXPECT_EQ(BytesOf(folder.Path()), other);
    folder.Sentences.clear();
    EXPECT_EQ(folder.Open().GetSettingLong("OrvelleCP", "Left", 1), 9);
    Told("is not the one that was written last");
}

TEST_F(StoreSurroundingsTest, ALogThatIsGoneIsTold) {
    FillAndCopy();
    const pid_t child = fork();
    if (child == 0) {
        auto store = folder.Open();
        for (Long value = 1; value <= 3; ++value) {
            store.SaveSettingLong("OrvelleCP", "Top", value);
            store.HandlerEnded();
        }
        _exit(0);
    }
    ASSERT_EQ(waitpid(child, nullptr, 0), child);
    fs::remove(folder.Path("OrvelleCP.sqlite-wal"));
    EXPECT_EQ(folder.Open().GetSettingLong("OrvelleCP", "Top", 0), 0);
    Told("is in an older state: the last 3 changes are lost. It is used as it is.");
    folder.Open();
    EXPECT_EQ(folder.Sentences.size(), 1U);
}

TEST_F(StoreSurroundingsTest, WithoutSharedMemoryItIsReadAndWrittenAllTheSame) {
    folder.Fill();
    disk.FailSharedMemory();
    {
        auto store = folder.Open();
        EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Left", 1), 7);
        store.SaveSettingLong("OrvelleCP", "Left", 8);
    }
    EXPECT_EQ(folder.Open().GetSettingLong("OrvelleCP", "Left", 1), 8);
    EXPECT_TRUE(folder.Sentences.empty());
}

TEST_F(StoreSurroundingsTest, AFullDiskAtAStartLeavesTheSettings) {
    folder.Fill();
    disk.FailSharedMemory();
    disk.FailFromNowOn();
    auto store = folder.Open();
    EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Left", 1), 7);
    store.SaveSettingLong("OrvelleCP", "Left", 8);
    store.HandlerEnded();
    Told("could not be written");
    disk.Heal();
    folder.Loop.Run(10000);
    EXPECT_EQ(store.Close(), "");
    EXPECT_EQ(folder.Open().GetSettingLong("OrvelleCP", "Left", 1), 8);
}

TEST_F(StoreSurroundingsTest, FilesAndFoldersAreTheUsersAlone) {
    for (const mode_t mask : {mode_t{0}, mode_t{022}, mode_t{077}}) {
        const std::string inside = "new" + std::to_string(mask) + "/folder";
        const mode_t before = umask(mask);
        {
            auto store = folder.Open(inside + "/s");
            store.SaveSettingLong("OrvelleCP", "Left", 7);
            store.HandlerEnded();
            folder.Loop.Run(10000);
            for (const char* name : {"/s", "/s-wal", "/s-shm", "/s.lock", "/s.copy"})
                EXPECT_EQ(RightsOf(inside + name), mode_t{0600}) << name << " under " << mask;
            EXPECT_EQ(RightsOf(inside), mode_t{0700});
        }
        umask(before);
    }
}

TEST_F(StoreSurroundingsTest, AFileThatOthersMayReadIsTakenFromThem) {
    folder.Fill();
    fs::permissions(folder.Path(), fs::perms(0644));
    folder.Open();
    EXPECT_EQ(RightsOf("OrvelleCP.sqlite"), mode_t{0600});
}

}  // namespace
}  // namespace orvelle::store
