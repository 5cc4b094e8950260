#include "adapters/pulse/SoundPlayer.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <optional>

#include "tests/devices/DeviceRig.h"
#include "tests/devices/RecordedSoundServer.h"

namespace orvelle::pulse {
namespace {

constexpr const char* OnChannel = "Tessaly\\RADIO_ONCHANNEL.wav";
constexpr const char* NoChannel = "Tessaly\\RADIO_NOCHANNEL.wav";
constexpr int Loud = 1000;

class SoundPlayerTest : public DeviceRig {
protected:
    SoundPlayerTest() {
        std::string pattern = std::filesystem::temp_directory_path() / "orvelle-sounds-XXXXXX";
        folder = mkdtemp(pattern.data());
        server.emplace(folder);
    }
    ~SoundPlayerTest() override {
        server.reset();
        std::filesystem::remove_all(folder);
    }

    // How often the recorded wave has swung from well below zero to well above: once a period of each tone.
    int Swings() const {
        int swings = 0;
        bool isBelow = false;
        for (const std::int16_t sample : server->Heard()) {
            if (isBelow && sample > Loud) ++swings;
            isBelow = sample < -Loud || (isBelow && sample <= Loud);
        }
        return swings;
    }
    bool UntilSilent(SoundPlayer& player) {
        return Until([&] { return player.Playing() == 0; });
    }
    // What plays reaches the recording a little later.
    bool UntilSwings(int least) {
        return Until([&] { return Swings() >= least; });
    }

    std::filesystem::path folder;
    std::optional<RecordedSoundServer> server;
};

TEST_F(SoundPlayerTest, PlaysTheToneToItsEnd) {
    SoundPlayer player(loop, SOUNDS, server->Address());
    player.Play(OnChannel);
    ASSERT_TRUE(UntilSilent(player));
    // A tenth of a second each at 660 and at 880 Hz, less what swells and fades below the bound, and what a recording
    // loses on a machine that has other work.
    EXPECT_TRUE(UntilSwings(77));
    EXPECT_LE(Swings(), 154);
}

TEST_F(SoundPlayerTest, PlaysNoSecondCopyOfASoundThatPlays) {
    SoundPlayer player(loop, SOUNDS, server->Address());
    player.Play(NoChannel);
    ASSERT_TRUE(UntilSilent(player));  // connected now, so that each request could begin at once
    for (int request = 0; request < 1000; ++request) player.Play(OnChannel);
    EXPECT_EQ(player.Playing(), 1U);
    ASSERT_TRUE(UntilSilent(player));
    ASSERT_TRUE(UntilSwings(230));
    EXPECT_LE(std::ranges::max(server->Heard()), 9500);  // copies would add up
}

TEST_F(SoundPlayerTest, IsSilentWithoutAServerAndPlaysWhenOneHasCome) {
    const std::string address = server->Address();
    server.reset();
    SoundPlayer player(loop, SOUNDS, address);
    player.Play(OnChannel);
    ASSERT_TRUE(UntilSilent(player));
    server.emplace(folder);
    player.Play(OnChannel);
    ASSERT_TRUE(UntilSilent(player));
    EXPECT_TRUE(UntilSwings(140));
}

TEST_F(SoundPlayerTest, IsSilentForANameThatIsNotThere) {
    SoundPlayer player(loop, SOUNDS, server->Address());
    for (const char* const name : {"Tessaly\\NONE.wav", "..\\CMakeCache.txt", "", "Tessaly"}) player.Play(name);
    EXPECT_EQ(player.Playing(), 0U);
}

TEST_F(SoundPlayerTest, LeavesAServerThatHangsAndHoldsNothingUp) {
    SoundPlayer player(loop, SOUNDS, server->Address());
    player.Play(NoChannel);
    ASSERT_TRUE(UntilSilent(player));
    server->Kill(SIGSTOP);
    auto longest = std::chrono::steady_clock::duration::zero();
    auto last = std::chrono::steady_clock::now();
    player.Play(OnChannel);
    ASSERT_TRUE(Until([&] {
        const auto now = std::chrono::steady_clock::now();
        longest = std::max(longest, now - std::exchange(last, now));
        return player.Playing() == 0;
    }));
    EXPECT_LT(longest, std::chrono::milliseconds(500));
    player.Play(OnChannel);  // over a connection that is not taken
    EXPECT_TRUE(UntilSilent(player));
    server->Kill(SIGCONT);
    player.Play(OnChannel);
    EXPECT_TRUE(UntilSilent(player));
}

}  // namespace
}  // namespace orvelle::pulse
