// The mixer and the device lists over a real sound server; each case with PulseAudio and with PipeWire.
#include <chrono>
#include <csignal>
#include <iostream>

#include "tests/pulse/MixerRig.h"

namespace orvelle::pulse {

namespace {

using Clock = std::chrono::steady_clock;

Long MillisecondsSince(Clock::time_point begin) {
    return static_cast<Long>(std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - begin).count());
}

}  // namespace

template <typename Server>
class PulseMixerTest : public MixerRig<Server> {};

using Servers = testing::Types<PulseAudioServer, PipeWireServer>;
struct ServerNames {
    template <typename Server>
    static std::string GetName(int) {
        return std::is_same_v<Server, PulseAudioServer> ? "PulseAudio" : "PipeWire";
    }
};
TYPED_TEST_SUITE(PulseMixerTest, Servers, ServerNames);

TYPED_TEST(PulseMixerTest, OpensFromTheLoopWithTheServersLevels) {
    EXPECT_EQ(this->sound->Devices.InputNames(), Texts{"Microphone"});
    EXPECT_EQ(std::ranges::count(this->sound->Devices.OutputNames(), "Headset"), 1);
    this->Mixer().Open();
    EXPECT_TRUE(this->events.empty());
    ASSERT_TRUE(this->UntilTold({"InputOpened", "OutputOpened"}));
    EXPECT_FALSE(this->Mixer().MicUnavailable());
    EXPECT_EQ(this->Mixer().MicMin(), 0);
    EXPECT_EQ(this->Mixer().MicMax(), 100);
    EXPECT_EQ(this->Mixer().MicVolume(), 40);
    EXPECT_FALSE(this->Mixer().MasterUnavailable());
    EXPECT_EQ(this->Mixer().MasterMin(), 0);
    EXPECT_EQ(this->Mixer().MasterMax(), 100);
    EXPECT_EQ(this->Mixer().MasterVolume(), 60);
    EXPECT_TRUE(this->Mixer().WaveUnavailable());
}

TYPED_TEST(PulseMixerTest, FollowsAnotherMixerProgram) {
    this->OpenMixer();
    Long longest = 0;
    for (const int percent : {10, 75, 0, 100}) {
        const std::string word = std::to_string(percent);
        const auto begin = Clock::now();
        Pactl({"set-sink-volume", "headset", word + "%"});
        ASSERT_TRUE(this->UntilHears("Master " + word));
        Pactl({"set-source-volume", "microphone", word + "%"});
        ASSERT_TRUE(this->UntilHears("Mic " + word));
        longest = std::max(longest, MillisecondsSince(begin));
    }
    std::cout << "two changes, each by a pactl that was started, and both told: at most " << longest << " ms\n";
    Pactl({"set-sink-volume", "headset", "90%"});
    ASSERT_TRUE(this->UntilHears("Master 90"));
    Pactl({"set-sink-volume", "headset", "150%"});  // more than full is full
    ASSERT_TRUE(this->UntilHears("Master 100"));
}

TYPED_TEST(PulseMixerTest, WhatThePanelSetsCountsAtOnceAndReachesTheServer) {
    this->OpenMixer();
    this->Mixer().MasterVolume(33);
    this->Mixer().MicVolume(200);
    EXPECT_EQ(this->Mixer().MasterVolume(), 33);
    EXPECT_EQ(this->Mixer().MicVolume(), 100);
    EXPECT_TRUE(this->events.empty());
    ASSERT_TRUE(this->UntilTold({"Mic 100", "Master 33"}));
    EXPECT_TRUE(this->Until([this] {
        return this->hand->Percent(this->Sink, "headset") == 33 &&
               this->hand->Percent(this->Source, "microphone") == 100;
    }));
    this->Mixer().MasterVolume(33);
    this->Mixer().MicVolume(101);
    this->Mixer().WaveVolume(5);
    this->Mixer().MasterVolume(20);
    EXPECT_TRUE(this->UntilTold({"Master 20"}));
}

TYPED_TEST(PulseMixerTest, TheChannelsKeepTheirBalanceAlsoThroughSilence) {
    pa_cvolume volume = this->hand->Volume(this->Sink, "headset");
    ASSERT_EQ(volume.channels, 2);
    volume.values[0] = PA_VOLUME_NORM * 4 / 5;
    volume.values[1] = PA_VOLUME_NORM * 2 / 5;
    this->hand->SetVolume(this->Sink, "headset", volume);
    this->OpenMixer();
    ASSERT_TRUE(this->Until([this] { return this->Mixer().MasterVolume() == 80; }));
    for (const Long percent : {40, 1, 0, 50}) {
        this->Mixer().MasterVolume(percent);
        ASSERT_TRUE(this->Until([&] { return this->hand->Percent(this->Sink, "headset") == percent; }));
    }
    volume = this->hand->Volume(this->Sink, "headset");
    EXPECT_NEAR(volume.values[0], PA_VOLUME_NORM / 2, 100);
    EXPECT_NEAR(volume.values[1], PA_VOLUME_NORM / 4, 100);
}

TYPED_TEST(PulseMixerTest, ADeviceThatGoesIsClosedAndOpensWhenItIsBack) {
    this->Mixer().OutputDevice("Headset");
    this->Mixer().InputDevice("Microphone");
    this->OpenMixer();
    this->hand->Unload(this->sinkModule);
    ASSERT_TRUE(this->UntilHears("OutputClosed"));
    EXPECT_TRUE(this->Mixer().MasterUnavailable());
    EXPECT_EQ(std::ranges::count(this->sound->Devices.OutputNames(), "Headset"), 0);
    this->hand->Unload(this->sourceModule);
    ASSERT_TRUE(this->UntilHears("InputClosed"));
    EXPECT_TRUE(this->Mixer().MicUnavailable());
    this->Mixer().MasterVolume(10);
    this->Mixer().MicVolume(10);
    this->Mixer().Open();  // answered for each side as it stands
    ASSERT_TRUE(this->UntilTold({"InputClosed", "OutputClosed"}));

    this->hand->AddSink("headset", "Headset");
    ASSERT_TRUE(this->UntilHears("OutputOpened"));
    EXPECT_FALSE(this->Mixer().MasterUnavailable());
    this->hand->AddSource(TypeParam::Microphone, "microphone", "Microphone");
    ASSERT_TRUE(this->UntilHears("InputOpened"));
    Pactl({"set-sink-volume", "headset", "17%"});
    EXPECT_TRUE(this->UntilHears("Master 17"));
}

TYPED_TEST(PulseMixerTest, TheDefaultIsFollowedWhereverItMoves) {
    this->hand->AddSink("other", "Other");
    this->hand->SetPercent(this->Sink, "other", 25);
    this->hand->AddSource(TypeParam::Microphone, "other-microphone", "Other microphone");
    this->OpenMixer();
    this->hand->SetDefault(this->Sink, "other");
    ASSERT_TRUE(this->UntilTold({"OutputClosed", "OutputOpened"}));
    EXPECT_EQ(this->Mixer().MasterVolume(), 25);
    this->hand->SetDefault(this->Source, "other-microphone");
    ASSERT_TRUE(this->UntilTold({"InputClosed", "InputOpened"}));
    // A device that was chosen stays.
    this->Mixer().OutputDevice("Other");
    ASSERT_TRUE(this->UntilTold({"OutputClosed", "OutputOpened"}));
    this->hand->SetDefault(this->Sink, "headset");
    this->hand->SetPercent(this->Sink, "other", 26);
    EXPECT_TRUE(this->UntilTold({"Master 26"}));
}

TYPED_TEST(PulseMixerTest, AServerThatIsKilledIsAClosedMixerUntilOneIsBack) {
    this->OpenMixer();
    this->hand.reset();
    this->server.Kill();
    ASSERT_TRUE(this->UntilTold({"InputClosed", "OutputClosed"}));
    EXPECT_TRUE(this->sound->Devices.OutputNames().empty());
    EXPECT_TRUE(this->Mixer().MicUnavailable());
    this->Mixer().MasterVolume(10);
    this->server.Start();
    this->Furnish();
    ASSERT_TRUE(this->Until([this] {
        return this->Mixer().MasterVolume() == 60 && this->Mixer().MicVolume() == 40 &&
               std::ranges::count(this->events, "OutputOpened") > 0 &&
               std::ranges::count(this->events, "InputOpened") > 0;
    }));
    Pactl({"set-source-volume", "microphone", "17%"});
    EXPECT_TRUE(this->UntilHears("Mic 17"));
}

TYPED_TEST(PulseMixerTest, AServerThatHangsForTenSecondsHoldsNothingUp) {
    this->OpenMixer();
    this->hand.reset();
    this->server.Signal(SIGSTOP);
    // The user goes on; a server that doesn't answer is closed meanwhile.
    constexpr int Ticks = 200;
    constexpr Long Tick = 50;
    int ticks = 0;
    Ticket next;
    const std::function<void()> tick = [&] {
        this->Mixer().MasterVolume(++ticks % 100);
        next = this->loop.After(Tick, tick);
    };
    next = this->loop.After(Tick, tick);
    ASSERT_TRUE(this->Until([&] { return ticks >= Ticks; }));
    next.End();
    EXPECT_EQ(std::ranges::count(this->events, "OutputClosed"), 1);
    EXPECT_TRUE(this->Mixer().MasterUnavailable());
    this->events.clear();
    this->server.Signal(SIGCONT);
    ASSERT_TRUE(this->UntilTold({"InputOpened", "OutputOpened"}));
    this->hand.emplace();
    ASSERT_TRUE(
        this->Until([this] { return this->Mixer().MasterVolume() == this->hand->Percent(this->Sink, "headset"); }));
    this->hand->SetPercent(this->Sink, "headset", 17);
    ASSERT_TRUE(this->UntilHears("Master 17"));
    this->Mixer().MasterVolume(71);
    EXPECT_TRUE(this->Until([this] { return this->hand->Percent(this->Sink, "headset") == 71; }));
}

TYPED_TEST(PulseMixerTest, FiveHundredDevicesAreListedAndFollowed) {
    this->OpenMixer();
    constexpr int Count = 250;  // each with a source that listens to it
    std::vector<std::uint32_t> modules;
    const auto begin = Clock::now();
    for (int number = 0; number < Count; ++number)
        modules.push_back(this->hand->AddSink("sink" + std::to_string(number), "Device"));
    ASSERT_TRUE(this->Until([this] { return this->sound->Devices.OutputNames().size() > Count; }));
    const Texts names = this->sound->Devices.OutputNames();
    EXPECT_EQ(std::ranges::count(names, "Device"), 1);
    EXPECT_EQ(std::ranges::count(names, "Device (250)"), 1);
    EXPECT_EQ(this->sound->Devices.InputNames(), Texts{"Microphone"});
    this->Mixer().OutputDevice("Device (250)");
    ASSERT_TRUE(this->UntilTold({"OutputClosed", "OutputOpened"}));
    this->hand->SetPercent(this->Sink, "sink249", 17);
    ASSERT_TRUE(this->UntilHears("Master 17"));
    std::cout << Count << " sinks made and followed in " << MillisecondsSince(begin) << " ms\n";
    // A panel that starts now finds them all.
    this->Seek();
    EXPECT_EQ(this->sound->Devices.OutputNames().size(), names.size());
    for (const std::uint32_t module : modules) this->hand->Unload(module);
    EXPECT_TRUE(this->Until([this] { return this->sound->Devices.OutputNames().size() < 3; }));
}

TYPED_TEST(PulseMixerTest, NamesWithOddCharactersLeadToTheirDevice) {
    const Texts odd{"Pilot's \"best\" headset",
                    "Kopfhörer 耳机 🎧",
                    std::string(300, 'n'),
                    "a\nsecond line",
                    "  a; b = {c}\\ (2) <DEFAULT>  ",
                    "<DEFAULT>",
                    "None"};
    for (std::size_t number = 0; number < odd.size(); ++number)
        this->hand->AddSource(TypeParam::Microphone, "odd" + std::to_string(number), odd[number]);
    ASSERT_TRUE(this->Until([&] { return this->sound->Devices.InputNames().size() == odd.size() + 1; }));
    this->OpenMixer();
    for (std::size_t number = 0; number < odd.size(); ++number) {
        const std::string name = "odd" + std::to_string(number);
        const PulseDevice* const device = this->sound->Devices.Find(this->Source, name);
        ASSERT_NE(device, nullptr) << name;
        EXPECT_EQ(device->Title.find('\n'), std::string::npos);
        if (number < 3) {
            EXPECT_EQ(device->Title, this->hand->Description(this->Source, name));
        }
        this->Mixer().InputDevice(device->Title);
        ASSERT_TRUE(this->UntilTold({"InputClosed", "InputOpened"})) << device->Title;
        const Long percent = 10 + static_cast<Long>(number);
        this->Mixer().MicVolume(percent);
        EXPECT_TRUE(this->Until([&] { return this->hand->Percent(this->Source, name) == percent; })) << device->Title;
        this->events.clear();
    }
}

TYPED_TEST(PulseMixerTest, TheSecondOfOneDescriptionIsToldApart) {
    this->hand->AddSink("second", "Headset");
    ASSERT_TRUE(
        this->Until([this] { return std::ranges::count(this->sound->Devices.OutputNames(), "Headset (2)") == 1; }));
    this->Mixer().OutputDevice("Headset (2)");
    this->OpenMixer();
    this->hand->SetPercent(this->Sink, "second", 5);
    ASSERT_TRUE(this->UntilTold({"Master 5"}));
    // It keeps its name when the first one goes.
    this->hand->Unload(this->sinkModule);
    ASSERT_TRUE(this->Until([this] { return std::ranges::count(this->sound->Devices.OutputNames(), "Headset") == 0; }));
    this->hand->SetPercent(this->Sink, "second", 6);
    EXPECT_TRUE(this->UntilHears("Master 6"));
}

TYPED_TEST(PulseMixerTest, ATitleLeadsToTheServersNameAlsoWhileTheDeviceIsAway) {
    const PulseDevices& devices = this->sound->Devices;
    this->hand->AddSink("second", "Headset");
    ASSERT_TRUE(this->Until([&] { return devices.Find(this->Sink, "second") != nullptr; }));
    EXPECT_EQ(devices.NameOf(this->Sink, "Headset"), "headset");
    EXPECT_EQ(devices.NameOf(this->Sink, "Headset (2)"), "second");
    EXPECT_EQ(devices.NameOf(this->Source, "Microphone"), "microphone");
    for (const char* const none : {"Microphone", "", "<DEFAULT>", "Nothing"})
        EXPECT_EQ(devices.NameOf(this->Sink, none), "") << none;
    EXPECT_EQ(devices.NameOf(this->Source, "Headset"), "");
    this->hand->Unload(this->sinkModule);
    ASSERT_TRUE(this->Until([&] { return devices.Find(this->Sink, "headset") == nullptr; }));
    EXPECT_EQ(devices.NameOf(this->Sink, "Headset"), "headset");
    this->hand.reset();
    this->server.Kill();
    ASSERT_TRUE(this->Until([&] { return devices.InputNames().empty(); }));
    EXPECT_EQ(devices.NameOf(this->Source, "Microphone"), "microphone");
}

// Five seconds of a hand that moves twenty times a second, against a program that sets other levels at the same pace,
// each between two moves. What the handler reads is what the panel's slider shows.
TYPED_TEST(PulseMixerTest, ADraggedSliderNeverJumpsBackFromTheHand) {
    this->OpenMixer();
    this->Mixer().MasterVolume(0);
    Long hand = 0;
    Long furthest = 0;
    int moves = 0;
    PulseMixer& mixer = this->Mixer();
    mixer.MasterVolumeChanged = [&] { furthest = std::max(furthest, std::abs(hand - mixer.MasterVolume())); };
    Ticket next;
    std::function<void()> interfere;
    const std::function<void()> move = [&] {
        hand = ++moves % 101;
        mixer.MasterVolume(hand);
        furthest = std::max(furthest, std::abs(hand - mixer.MasterVolume()));
        next = this->loop.After(25, interfere);
    };
    interfere = [&] {
        this->hand->SetPercent(this->Sink, "headset", (hand + 50) % 100);
        next = this->loop.After(25, move);
    };
    next = this->loop.After(0, move);
    ASSERT_TRUE(this->Until([&] { return moves >= 100; }));
    next.End();
    EXPECT_EQ(furthest, 0);
    // Both come to rest together, and what the other program sets then is the newest.
    ASSERT_TRUE(this->Until([&] { return this->hand->Percent(this->Sink, "headset") == mixer.MasterVolume(); }));
    this->hand->SetPercent(this->Sink, "headset", 33);
    EXPECT_TRUE(this->Until([&] { return mixer.MasterVolume() == 33; }));
}

TYPED_TEST(PulseMixerTest, BothMixersOfOneDeviceAreOfOneLevel) {
    Texts speakers;
    this->sound->Speakers.OutputOpened = [&] { speakers.push_back("opened"); };
    this->sound->Speakers.MasterVolumeChanged = [&] {
        speakers.push_back(std::to_string(this->sound->Speakers.MasterVolume()));
    };
    this->sound->Speakers.OutputDevice("Headset");
    this->sound->Speakers.Open();
    this->OpenMixer();
    this->Mixer().MasterVolume(12);
    EXPECT_TRUE(this->Until([&] { return speakers == Texts{"opened", "12"}; }));
}

TYPED_TEST(PulseMixerTest, NothingIsToldAfterClose) {
    this->OpenMixer();
    this->Mixer().MasterVolume(12);
    this->Mixer().OutputDevice("Nothing");
    this->Mixer().Close();
    this->hand->SetPercent(this->Source, "microphone", 12);
    ASSERT_TRUE(this->Until([this] { return this->Mixer().MicVolume() == 12; }));
    EXPECT_TRUE(this->events.empty());
    this->Mixer().Open();
    EXPECT_TRUE(this->UntilTold({"InputOpened", "OutputClosed"}));
}

}  // namespace orvelle::pulse
