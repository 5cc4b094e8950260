// What becomes of a store that can be read but not written, or not even read: one sentence for the user, nothing lost,
// and a run that goes on.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>

#include "tests/store/FaultyDisk.h"
#include "tests/store/StoreFolder.h"

namespace orvelle::store {
namespace {

namespace fs = std::filesystem;

// The superuser may write everywhere; so the checks run as nobody, in a process of their own.
void InAFolderOfNobody(const std::function<void(StoreFolder& folder)>& checks) {
    const pid_t child = fork();
    if (child == 0) {
        constexpr uid_t Nobody = 65534;
        if (geteuid() == 0 && (setgid(Nobody) != 0 || setuid(Nobody) != 0)) _exit(2);
        {
            const FaultyDisk disk;
            StoreFolder folder;
            checks(folder);
        }
        _exit(testing::Test::HasFailure() ? 1 : 0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

constexpr fs::perms Readable = fs::perms::owner_read;
constexpr fs::perms Enterable = fs::perms::owner_read | fs::perms::owner_exec;

void ProtectFile(const StoreFolder& folder) { fs::permissions(folder.Path(), Readable); }
void ProtectFolder(const StoreFolder& folder) { fs::permissions(folder.Path().parent_path(), Enterable); }

TEST(StoreReadOnlyTest, AReadOnlyFileIsReadAndKept) {
    InAFolderOfNobody([](StoreFolder& folder) {
        folder.Fill();
        ProtectFile(folder);
        ExpectInMemory(folder, "cannot be written. Its settings are used, but", 7);
    });
}

// The program ends without closing its store, so the log stays beside the file.
void WriteAndEnd(StoreFolder& folder) {
    const pid_t child = fork();
    if (child == 0) {
        auto store = folder.Open();
        store.SaveSettingLong("OrvelleCP", "Left", 8);
        store.HandlerEnded();
        _exit(0);
    }
    ASSERT_EQ(waitpid(child, nullptr, 0), child);
    ASSERT_EQ(folder.Files().size(), 4U);  // with the log, the shared memory, and the lock
}

TEST(StoreReadOnlyTest, AReadOnlyFileIsReadWithItsLog) {
    InAFolderOfNobody([](StoreFolder& folder) {
        folder.Fill();
        WriteAndEnd(folder);
        ProtectFile(folder);
        ExpectInMemory(folder, "cannot be written. Its settings are used, but", 8);
    });
}

TEST(StoreReadOnlyTest, ReadOnlyFilesInAReadOnlyFolderAreReadWithTheirLog) {
    InAFolderOfNobody([](StoreFolder& folder) {
        folder.Fill();
        WriteAndEnd(folder);
        for (const std::string& name : folder.Files()) fs::permissions(folder.Path(name), Readable);
        ProtectFolder(folder);
        ExpectInMemory(folder, "cannot be written. Its settings are used, but", 8);
    });
}

TEST(StoreReadOnlyTest, AFileWithALogIsWrittenInAReadOnlyFolder) {
    InAFolderOfNobody([](StoreFolder& folder) {
        folder.Fill();
        WriteAndEnd(folder);
        ProtectFolder(folder);
        {
            auto store = folder.Open();
            EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Left", 1), 8);
            store.SaveSettingLong("OrvelleCP", "Left", 9);
        }
        EXPECT_EQ(folder.Open().GetSettingLong("OrvelleCP", "Left", 1), 9);
        EXPECT_TRUE(folder.Sentences.empty());
    });
}

TEST(StoreReadOnlyTest, AFileInAReadOnlyFolderIsReadAndKept) {
    InAFolderOfNobody([](StoreFolder& folder) {
        folder.Fill();
        ProtectFolder(folder);
        ExpectInMemory(folder, "cannot be written. Its settings are used, but", 7);
    });
}

TEST(StoreReadOnlyTest, AReadOnlyFileInAReadOnlyFolderIsReadAndKept) {
    InAFolderOfNobody([](StoreFolder& folder) {
        folder.Fill();
        ProtectFile(folder);
        ProtectFolder(folder);
        ExpectInMemory(folder, "cannot be written. Its settings are used, but", 7);
    });
}

TEST(StoreReadOnlyTest, AStrangeNameIsReadTooWhereNothingCanBeWritten) {
    InAFolderOfNobody([](StoreFolder& folder) {
        const std::string name = "a%20b?c#d &\xC3\xBC.sqlite";
        folder.Open(name).SaveSettingLong("OrvelleCP", "Left", 7);
        ProtectFolder(folder);
        ExpectInMemory(folder, "cannot be written. Its settings are used, but", 7, name);
    });
}

TEST(StoreReadOnlyTest, AnUnreadableFileIsLeftAlone) {
    InAFolderOfNobody([](StoreFolder& folder) {
        folder.Fill();
        fs::permissions(folder.Path(), fs::perms::none);
        ExpectInMemory(folder, "cannot be used", 1);
    });
}

TEST(StoreReadOnlyTest, AReadOnlyFolderWithoutAFileStaysEmpty) {
    InAFolderOfNobody([](StoreFolder& folder) {
        ProtectFolder(folder);
        ExpectInMemory(folder, "cannot be used", 1);
    });
}

TEST(StoreReadOnlyTest, ADamagedFileInAReadOnlyFolderStaysWhereItIs) {
    InAFolderOfNobody([](StoreFolder& folder) {
        WriteBytes(folder.Path(), "damaged");
        ProtectFolder(folder);
        ExpectInMemory(folder, "is damaged", 1);
    });
}

class StoreFullDiskTest : public testing::Test {
protected:
    FaultyDisk disk;
    StoreFolder folder;
};

TEST_F(StoreFullDiskTest, AFullDiskIsToldOnceAndWrittenToWhenItHasRoomAgain) {
    {
        auto store = folder.Open();
        store.SaveSettingLong("OrvelleCP", "Left", 1);
        store.HandlerEnded();
        disk.FailFromNowOn();
        for (Long value = 2; value < 5; ++value) {
            store.SaveSettingLong("OrvelleCP", "Left", value);
            store.SaveSettingLong("OrvelleCP", "Top", value);
            store.HandlerEnded();
            EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Left", 0), value);
        }
        ASSERT_EQ(folder.Sentences.size(), 1U);
        EXPECT_NE(folder.Sentences[0].find("could not be written (database or disk is full)"), std::string::npos);
        disk.Heal();
        EXPECT_EQ(folder.Text("SELECT value FROM setting WHERE name = 'Left'"), "1");
        folder.Loop.Run(10000);
        EXPECT_EQ(folder.Text("SELECT value FROM setting WHERE name = 'Left'"), "4");
    }
    auto store = folder.Open();
    EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Top", 0), 4);
    EXPECT_EQ(folder.Sentences.size(), 1U);
}

TEST_F(StoreFullDiskTest, AFullDiskAtTheFirstStartIsToldAndTheRunGoesOn) {
    disk.FailFromNowOn();
    auto store = folder.Open();
    store.SaveSettingLong("OrvelleCP", "Left", 2);
    store.HandlerEnded();
    EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Left", 1), 2);
    EXPECT_EQ(folder.Sentences.size(), 1U);
    EXPECT_FALSE(fs::exists(folder.Path()));
}

TEST_F(StoreFullDiskTest, ADamagedFileIsKeptWhereNoNewOneCanBeMade) {
    WriteBytes(folder.Path(), "damaged");
    disk.FailFromNowOn();
    auto store = folder.Open();
    store.SaveSettingLong("OrvelleCP", "Left", 2);
    store.HandlerEnded();
    EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Left", 1), 2);
    ASSERT_EQ(folder.Sentences.size(), 1U);
    EXPECT_NE(folder.Sentences[0].find("was kept as"), std::string::npos);
    EXPECT_NE(folder.Sentences[0].find("no new one can be made (database or disk is full)"), std::string::npos);
    EXPECT_EQ(BytesOf(folder.Path("OrvelleCP.sqlite.damaged-1")), "damaged");
}

TEST_F(StoreFullDiskTest, AFullDiskInTheMiddleOfAHandlerLosesNothingOfTheFile) {
    folder.Fill();
    for (long write = 1; write <= 30; ++write) {
        SCOPED_TRACE(write);
        {
            auto store = folder.Open();
            disk.FailAt(disk.Writes() + write, FaultyDisk::Fault::Full);
            store.DeleteSettingSection("OrvelleCP\\Joy2Key");
            for (Long row = 1; row <= 100; ++row)
                store.SaveSettingString("OrvelleCP\\Joy2Key\\" + std::to_string(row), "J2KJoy", std::to_string(write));
            store.HandlerEnded();
        }
        disk.Heal();
        auto store = folder.Open();
        const std::string first = store.GetSettingString("OrvelleCP\\Joy2Key\\1", "J2KJoy", "none");
        for (Long row = 1; row <= 100; ++row)
            EXPECT_EQ(store.GetSettingString("OrvelleCP\\Joy2Key\\" + std::to_string(row), "J2KJoy", "none"), first);
    }
}

}  // namespace
}  // namespace orvelle::store
