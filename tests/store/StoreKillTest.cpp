// A process that writes handler after handler is killed in the middle of its writes, at every so many writes to the
// disk. Whatever the moment, each handler's writes are there whole or not at all, and those of every handler that was
// reported done are there.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>

#include "tests/store/FaultyDisk.h"
#include "tests/store/StoreFolder.h"

namespace orvelle::store {
namespace {

constexpr int Runs = 4;
constexpr Long HandlersInARun = 8;

std::string RowSection(Long row) { return "OrvelleCP\\Joy2Key\\" + std::to_string(row); }
Long RowsOf(Long handler) { return 5 + handler * 7 % 20; }

std::string Filled(const std::string& what, Long handler, Long row) {
    return what + " " + std::to_string(handler) + " " + std::to_string(row) + std::string(60, '.');
}

void WriteHandler(SqliteStore& store, Long handler) {
    store.DeleteSettingSection("OrvelleCP\\Joy2Key");
    for (Long row = 1; row <= RowsOf(handler); ++row) {
        store.SaveSettingString(RowSection(row), "J2KJoy", Filled("button", handler, row));
        store.SaveSettingString(RowSection(row), "Toggle", "Push");
        store.SaveSettingString(RowSection(row), "J2KKey", Filled("key", handler, row));
    }
    store.SaveSettingLong("OrvelleCP", "Left", handler);
    store.WriteRegistryLong(LocalMachine, "SOFTWARE\\Orvelle", "Handler", handler);
    store.SetControlValue("Velmarc.Server", std::to_string(handler));
    store.HandlerEnded();
}

// Several runs of the program, each of which ends in order, so that the log is taken up into the file in between.
void WriteHandlers(StoreFolder& folder, int reports) {
    Long handler = 1;
    for (int run = 0; run < Runs; ++run) {
        auto store = folder.Open();
        for (Long count = 0; count < HandlersInARun; ++count, ++handler) {
            WriteHandler(store, handler);
            const auto done = static_cast<unsigned char>(handler);
            if (write(reports, &done, 1) != 1) _exit(1);
        }
    }
}

class StoreKillTest : public testing::Test {
protected:
    Long WriteAndBeKilled(StoreFolder& folder, long atWrite, FaultyDisk::Fault fault);
    long WritesInAll();
    void KillAtManyPoints(FaultyDisk::Fault fault, long points);

    FaultyDisk disk;
};

// The last handler that the process reported done before it was killed, 0 for none.
Long StoreKillTest::WriteAndBeKilled(StoreFolder& folder, long atWrite, FaultyDisk::Fault fault) {
    std::array<int, 2> channel{};
    EXPECT_EQ(pipe(channel.data()), 0);
    const pid_t child = fork();
    if (child == 0) {
        disk.FailAt(disk.Writes() + atWrite, fault);
        WriteHandlers(folder, channel[1]);
        _exit(0);
    }
    close(channel[1]);
    Long last = 0;
    unsigned char done = 0;
    while (read(channel[0], &done, 1) == 1) last = done;
    close(channel[0]);
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << "write " << atWrite << " was never made";
    return last;
}

void ExpectWhole(StoreFolder& folder, Long lastReported) {
    auto store = folder.Open();
    EXPECT_EQ(folder.Sentences, std::vector<std::string>{});
    const Long handler = store.GetSettingLong("OrvelleCP", "Left", 0);
    EXPECT_GE(handler, lastReported);
    EXPECT_LE(handler, lastReported + 1);
    EXPECT_EQ(store.ReadRegistryLong(LocalMachine, "SOFTWARE\\Orvelle", "Handler", 0), handler);
    EXPECT_EQ(store.GetControlValue("Velmarc.Server", "0"), std::to_string(handler));
    const Long rows = handler == 0 ? 0 : RowsOf(handler);
    store.OpenSettingList("OrvelleCP\\Joy2Key");
    EXPECT_EQ(store.SettingListCount(), rows);
    store.CloseSettingList();
    for (Long row = 1; row <= rows; ++row) {
        EXPECT_EQ(store.GetSettingString(RowSection(row), "J2KJoy", ""), Filled("button", handler, row));
        EXPECT_EQ(store.GetSettingString(RowSection(row), "Toggle", ""), "Push");
        EXPECT_EQ(store.GetSettingString(RowSection(row), "J2KKey", ""), Filled("key", handler, row));
    }
}

long StoreKillTest::WritesInAll() {
    const long before = disk.Writes();
    StoreFolder folder;
    std::array<int, 2> channel{};
    EXPECT_EQ(pipe(channel.data()), 0);
    WriteHandlers(folder, channel[1]);
    close(channel[0]);
    close(channel[1]);
    return disk.Writes() - before;
}

void StoreKillTest::KillAtManyPoints(FaultyDisk::Fault fault, long points) {
    const long writes = WritesInAll();
    ASSERT_GE(writes, points);
    for (long point = 1; point <= points; ++point) {
        const long atWrite = point * writes / points;
        SCOPED_TRACE("killed at write " + std::to_string(atWrite) + " of " + std::to_string(writes));
        StoreFolder folder;
        const Long last = WriteAndBeKilled(folder, atWrite, fault);
        ExpectWhole(folder, last);
        if (testing::Test::HasFailure()) return;
    }
}

TEST_F(StoreKillTest, AKillBetweenWritesLeavesWholeHandlers) { KillAtManyPoints(FaultyDisk::Fault::Kill, 240); }
TEST_F(StoreKillTest, AKillHalfWayThroughAWriteLeavesWholeHandlers) {
    KillAtManyPoints(FaultyDisk::Fault::KillHalfWay, 120);
}

// The first writes make the file; there every one is tried.
TEST_F(StoreKillTest, AKillWhileTheFileIsMadeLeavesNoneOrAWholeOne) {
    for (long atWrite = 1; atWrite <= 40; ++atWrite) {
        SCOPED_TRACE("killed at write " + std::to_string(atWrite));
        StoreFolder folder;
        const Long last = WriteAndBeKilled(folder, atWrite, FaultyDisk::Fault::Kill);
        ExpectWhole(folder, last);
    }
}

}  // namespace
}  // namespace orvelle::store
