// Recorded airfield broadcasts, played for real: the panel's logic with the players in place that are heard, which it
// itself lets go of at its start.
#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>
#include <numbers>

#include "adapters/media/LoadedMediaPlayers.h"
#include "apps/OwnModules.h"
#include "tests/endtoend/PanelTest.h"
#include "tests/endtoend/UsersSoundServer.h"
#include "tests/endtoend/WebFile.h"

namespace orvelle {

namespace {

constexpr double Frequency = 1000;  // of the recording
constexpr double Loud = 4000;       // half of its amplitude
constexpr double Silent = 300;

void Append(std::string& bytes, std::uint32_t number, int size) {
    for (int byte = 0; byte < size; ++byte) bytes += static_cast<char>(number >> (8 * byte));
}

// A wave file of a third of a second.
std::string Recording() {
    constexpr std::uint32_t Rate = 22050;
    std::string samples;
    for (std::uint32_t at = 0; at < Rate / 3; ++at)
        Append(samples, static_cast<std::uint32_t>(8000 * std::sin(2 * std::numbers::pi * Frequency * at / Rate)), 2);
    std::string wave = "RIFF";
    Append(wave, static_cast<std::uint32_t>(36 + samples.size()), 4);
    wave += "WAVEfmt ";
    for (const auto& [number, size] :
         {std::pair{16U, 4}, {1U, 2}, {1U, 2}, {Rate, 4}, {2 * Rate, 4}, {2U, 2}, {16U, 2}})
        Append(wave, number, size);
    wave += "data";
    Append(wave, static_cast<std::uint32_t>(samples.size()), 4);
    return wave + samples;
}

bool IsLoaded(const std::string& library) {
    std::ifstream maps("/proc/self/maps");
    const std::string all(std::istreambuf_iterator<char>(maps), {});
    return all.find(library) != std::string::npos;
}

// What the panel did with a player.
struct Use {
    int TimesOpened = 0;
    int PollsThatFoundItStopped = 0;  // since it was last opened
    int MostSuchPolls = 0;
};

class UsedPlayer : public MediaPlayer {
public:
    UsedPlayer(std::unique_ptr<MediaPlayer> usedPlayer, Use& itsUse) : player(std::move(usedPlayer)), use(itsUse) {}

    void AutoRewind(bool on) override { player->AutoRewind(on); }
    void Open(const std::string& source) override {
        ++use.TimesOpened;
        use.PollsThatFoundItStopped = 0;
        player->Open(source);
    }
    void Stop() override { player->Stop(); }
    void Mute(bool on) override { player->Mute(on); }
    void Volume(Long value) override { player->Volume(value); }
    Long PlayState() override {
        const Long state = player->PlayState();
        if (state == 0) use.MostSuchPolls = std::max(use.MostSuchPolls, ++use.PollsThatFoundItStopped);
        return state;
    }

private:
    const std::unique_ptr<MediaPlayer> player;
    Use& use;
};

class AtisTest : protected UsersSoundServer, public PanelTest {
protected:
    AtisTest() {
        players.Told = [this](const std::string& sentence) { told.push_back(sentence); };
        std::ofstream(File("atis.wav"), std::ios::binary) << Recording();
        std::ofstream(File("words.wav")) << "These are words.\n";
    }
    ~AtisTest() override {
        panel.WMPCOM1.reset();
        panel.WMPCOM2.reset();
    }

    std::string File(const char* name) const { return folder.filePath(name).toStdString(); }
    // As if the start had kept the players.
    void PutInPlace() {
        panel.WMPCOM1 = std::make_unique<UsedPlayer>(players.New(0), use);
        panel.WMPCOM2 = players.New(1);
        panel.Timer1.Enabled = true;
        panel.VoiceATISEnable.Value = 1;
    }
    void Tune(const std::string& source) {
        house.Outside.Practice.NetworkLink.SetVoice(0, {VoiceAtis, source, "", "", ""});
    }

    static media::LoadedMediaPlayers::LoadModule From(const std::string& module) {
        return [module](std::string& why) {
            return FunctionOf<NewOrvelleMediaPlayerFunction>(module, "NewOrvelleMediaPlayer", why);
        };
    }

    media::LoadedMediaPlayers players{From(MEDIA_MODULE)};
    std::vector<std::string> told;
    Use use;
};

TEST_F(AtisTest, ARecordingIsHeardAndOpenedAgainAtTheFirstPollAfterItsEnd) {
    ASSERT_TRUE(IsModuleThere(MEDIA_MODULE));
    ASSERT_NO_FATAL_FAILURE(Open());
    ASSERT_NO_FATAL_FAILURE(Connect());
    PutInPlace();
    EXPECT_FALSE(IsLoaded("libQt6Multimedia"));  // while no recording is wanted
    EXPECT_LT(LoudnessOf(Frequency), Silent);
    Tune(File("atis.wav"));
    EXPECT_TRUE(ComesTrue([this] { return LoudnessOf(Frequency) > Loud; }));
    EXPECT_TRUE(IsLoaded("libQt6Multimedia"));
    EXPECT_TRUE(ComesTrue([this] { return use.TimesOpened >= 3; }));
    EXPECT_EQ(panel.Timer1.Interval, 1000);
    EXPECT_EQ(use.MostSuchPolls, 1);
    EXPECT_TRUE(told.empty()) << told.front();
}

TEST_F(AtisTest, ARecordingOfTheWebIsHeard) {
    ASSERT_NO_FATAL_FAILURE(Open());
    ASSERT_NO_FATAL_FAILURE(Connect());
    PutInPlace();
    const WebFile file(Recording());
    Tune(file.Address());
    EXPECT_TRUE(ComesTrue([this] { return LoudnessOf(Frequency) > Loud; }));
    EXPECT_TRUE(ComesTrue([&] { return use.TimesOpened >= 2 && file.TimesAsked() >= 2; }));
}

TEST_F(AtisTest, AMutedRecordingGoesOnInSilence) {
    ASSERT_NO_FATAL_FAILURE(Open());
    ASSERT_NO_FATAL_FAILURE(Connect());
    house.Outside.Practice.NetworkLink.SetReceive("2");
    ASSERT_TRUE(ComesTrue([this] { return panel.Variables().ReceiveSelect == "2"; }));
    PutInPlace();
    Tune(File("atis.wav"));
    EXPECT_TRUE(ComesTrue([this] { return use.TimesOpened >= 3; }));
    EXPECT_LT(LoudnessOf(Frequency), Silent);
    house.Outside.Practice.NetworkLink.SetReceive("B");
    EXPECT_TRUE(ComesTrue([this] { return LoudnessOf(Frequency) > Loud; }));
}

TEST_F(AtisTest, ASourceThatCanNotBePlayedIsToldOnceAndTriedAgain) {
    ASSERT_NO_FATAL_FAILURE(Open());
    ASSERT_NO_FATAL_FAILURE(Connect());
    PutInPlace();
    std::size_t reasons = 0;
    for (const std::string& source : {File("missing.wav"), File("words.wav"), std::string("gopher://srv1/atis.wav"),
                                      std::string("http://127.0.0.1:1/atis.wav")}) {
        const int openedBefore = use.TimesOpened;
        Tune(source);
        EXPECT_TRUE(ComesTrue([&] { return use.TimesOpened >= openedBefore + 2; })) << source;
        ASSERT_EQ(told.size(), ++reasons) << source;
        EXPECT_NE(told.back().find(source), std::string::npos) << told.back();
    }
    Tune(File("atis.wav"));
    EXPECT_TRUE(ComesTrue([this] { return LoudnessOf(Frequency) > Loud; }));
}

TEST_F(AtisTest, AModuleThatCanNotBeLoadedIsToldAndEndsNothing) {
    media::LoadedMediaPlayers damaged(From(File("words.wav")));
    std::vector<std::string> sentences;
    damaged.Told = [&](const std::string& sentence) { sentences.push_back(sentence); };
    ASSERT_TRUE(IsModuleThere(File("words.wav")));
    const std::unique_ptr<MediaPlayer> player = damaged.New(0);
    player->Volume(-500);
    player->Mute(true);
    player->Stop();
    EXPECT_TRUE(sentences.empty());
    for (int time = 0; time < 3; ++time) {
        player->Open(File("atis.wav"));
        EXPECT_EQ(player->PlayState(), 0);
    }
    ASSERT_EQ(sentences.size(), 1U);
    EXPECT_TRUE(sentences.front().starts_with("Recordings can't be played: ")) << sentences.front();
    EXPECT_FALSE(IsModuleThere("/nowhere/module.so"));
}

}  // namespace

}  // namespace orvelle
