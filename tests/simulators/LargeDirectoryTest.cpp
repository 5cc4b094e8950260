// A directory as long as one may be, while the loop has others to serve.
#include <gtest/gtest.h>

#include <ctime>
#include <fstream>

#include "adapters/linux/PollEventLoop.h"
#include "simulators/directory/Channels.h"
#include "simulators/directory/DirectoryFolder.h"
#include "tests/linux/ServeUntil.h"
#include "tests/shared/OwnFolder.h"
#include "tests/simulators/DirectoryText.h"

namespace orvelle::directory {
namespace {

constexpr std::size_t Stations = 80'000;

std::string LargeDirectory(const std::string& last) {
    std::string stations;
    for (std::size_t number = 1; number < Stations; ++number)
        stations +=
            StationText("S" + std::to_string(number), FirstChannel + 25 * static_cast<int>(number % 700)) + ",\n";
    return DirectoryWith(ClubServer, stations + StationText(last, FirstChannel));
}

// Seconds of the processor that this thread has had.
double Spent() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

class LargeDirectoryTest : public testing::Test {
protected:
    bool Until(const std::function<bool()>& isSo) { return linux::ServeUntil(loop, isSo); }
    void Write(const std::string& text) { std::ofstream(own.Path / "large.json") << text; }

    OwnFolder own;
    linux::PollEventLoop loop;
    DirectoryFolder folder{loop, own.Path};
};

// First one that comes, then one that takes its place.
TEST_F(LargeDirectoryTest, HardlyHoldsTheLoopUp) {
    Directories all({&folder});
    for (const std::string last : {"A_TWR", "B_TWR"}) {
        const std::string text = LargeDirectory(last);
        ASSERT_GT(text.size(), LongestDirectory / 2);
        double begin = Spent();
        ASSERT_EQ(ReadDirectory(text).Content->Stations.size(), Stations);
        const double reading = Spent() - begin;
        Write(text);
        begin = Spent();
        ASSERT_TRUE(Until([&] {
            const Directory* const first = all.Index().Find(0);
            return first != nullptr && first->Stations.back().Callsign == last;
        }));
        EXPECT_LT(Spent() - begin, reading / 3);
        RecordProperty("reading", std::to_string(reading));
        RecordProperty("loop", std::to_string(Spent() - begin));
    }
}

TEST_F(LargeDirectoryTest, IsIndexedOnceWhateverComesBesideIt) {
    Write(LargeDirectory("A_TWR"));
    Directories all({&folder});
    ASSERT_TRUE(Until([&all] { return all.Index().Find(0) != nullptr; }));
    double begin = Spent();
    { const StationIndex index({folder.Directories()[0].Content}); }
    const double indexing = Spent() - begin;
    std::ofstream(own.Path / "small.json") << DirectoryWith(ClubServer);
    begin = Spent();
    ASSERT_TRUE(Until([&all] { return all.Index().Find(1) != nullptr; }));
    EXPECT_LT(Spent() - begin, indexing / 2);
    RecordProperty("indexing", std::to_string(indexing));
    RecordProperty("small", std::to_string(Spent() - begin));
}

TEST_F(LargeDirectoryTest, IsGoneWhenItGoesWhileItIsRead) {
    Write(LargeDirectory("A_TWR"));
    ASSERT_TRUE(Until([this] { return folder.Directories().size() == 1; }));
    std::filesystem::remove(own.Path / "large.json");
    ASSERT_TRUE(Until([this] { return folder.Directories().empty(); }));
    Write(DirectoryWith(ClubServer));
    ASSERT_TRUE(Until([this] { return folder.Directories().size() == 1 && folder.Directories()[0].Content; }));
    EXPECT_TRUE(folder.Directories()[0].Content->Stations.empty());
}

}  // namespace
}  // namespace orvelle::directory
