// The voice engine that is heard, with its thread, at a real voice server and a real sound server.
#include <algorithm>
#include <chrono>

#include "tests/apps/voice/VoiceEngineRig.h"
#include "tests/mumble/PlayedServer.h"
#include "tests/mumble/VoiceServerRig.h"

namespace orvelle {
namespace {

using Texts = std::vector<std::string>;
using Clock = std::chrono::steady_clock;

constexpr double Spoken = 1000;  // hertz
constexpr double Heard = -35;    // decibels, of a tone that was spoken at -12
constexpr double LessThanTwice = 4;

class VoiceEngineTest : public VoiceEngineRig {
protected:
    // How loud the tone is there now, and whether it is or goes.
    double LevelAt(const std::string& sink) {
        const auto now = Clock::now();
        return probe.Recorded(sink + ".monitor").ToneLevel(Spoken, now - std::chrono::milliseconds(100), now);
    }
    bool IsHeardAt(const std::string& sink) {
        return Until([&] { return LevelAt(sink) > Heard; });
    }
    bool IsSilentAt(const std::string& sink) {
        return Until([&] { return LevelAt(sink) < Heard - 20; });
    }
    // The tone's level in the second that follows.
    double SteadyLevelAt(const std::string& sink) {
        const auto begin = Clock::now();
        EXPECT_TRUE(Until([&] { return Clock::now() > begin + std::chrono::milliseconds(1200); }));
        return probe.Recorded(sink + ".monitor")
            .ToneLevel(Spoken, begin + std::chrono::milliseconds(100), begin + std::chrono::milliseconds(1100));
    }
    void Speak(const std::string& mouth) {
        probe.Play(mouth, pulse::Tone(Spoken, 1000), pulse::Playing::AgainAndAgain);
    }
    void Listen(const Texts& sinks) {
        for (const std::string& sink : sinks) probe.Record(sink + ".monitor");
    }

    pulse::SoundProbe probe;
    Pilot first{loop, "1"};
};

class VoiceAtServerTest : public VoiceEngineTest {
protected:
    mumble::VoiceServerRig server;
    Pilot second{loop, "2"};
};

TEST_F(VoiceEngineTest, StartsAndStopsAgainAndAgain) {
    VoiceEngine& engine = first.Engine;
    for (int time = 0; time < 3; ++time) {
        EXPECT_TRUE(engine.Start(EngineMode));
        EXPECT_TRUE(engine.IsStarting());
        EXPECT_TRUE(engine.Start(EngineMode)) << "it is on its way";
        EXPECT_FALSE(engine.Running());
        ASSERT_TRUE(HasRaised(first, "Started"));
        EXPECT_TRUE(engine.Running());
        EXPECT_FALSE(engine.Start(EngineMode));
        EXPECT_TRUE(engine.InputStatus() && engine.OutputStatus(Headset) && engine.OutputStatus(Speakers));
        EXPECT_FALSE(engine.OutputStatus(2));
        engine.Stop();
        EXPECT_FALSE(engine.Running() || engine.InputStatus() || engine.OutputStatus(Headset));
        EXPECT_EQ(first.Events.Take(), Texts{"Started"});
    }
    engine.Start(EngineMode);
    engine.Stop();
    engine.Start(EngineMode);
    ASSERT_TRUE(HasRaised(first, "Started"));
    EXPECT_EQ(first.Events.Take(), Texts{"Started"});
}

TEST_F(VoiceEngineTest, NothingIsJoinedByAnEngineThatStandsStillOrAnAddressThatIsNone) {
    EXPECT_FALSE(first.Engine.RoomJoin(0, "ABC123", "srv/ops"));
    ASSERT_NO_FATAL_FAILURE(StartEngine(first));
    EXPECT_FALSE(first.Engine.RoomJoin(3, "ABC123", "srv/ops"));
    EXPECT_FALSE(first.Engine.RoomJoin(-1, "ABC123", "srv/ops"));
    EXPECT_FALSE(first.Engine.RoomJoin(1, "ABC123", "srv"));
    EXPECT_TRUE(first.Events.Seen().empty()) << "from the loop alone";
    ASSERT_TRUE(HasRaised(first, "Status 1"));
    EXPECT_FALSE(first.Engine.RoomStatus(1).empty());
    EXPECT_EQ(first.Engine.Room(1).Presence, RoomPresence::Out);
    EXPECT_EQ(first.Engine.RoomStatus(3), "");
}

TEST_F(VoiceEngineTest, AJoinThatIsGivenUpHasNoOutcomeAndStopEndsOneThatIsUnderWay) {
    const mumble::SilentServer silent;
    ASSERT_NO_FATAL_FAILURE(StartEngine(first));
    ASSERT_TRUE(first.Engine.RoomJoin(0, "ABC123", silent.Room("ops")));
    ASSERT_TRUE(HasRaised(first, "Status 0"));
    first.Engine.RoomLeave(0);
    ASSERT_TRUE(first.Engine.RoomJoin(1, "ABC123", "127.0.0.1:1/ops"));
    ASSERT_TRUE(HasRaised(first, "JoinFailed 1"));
    EXPECT_FALSE(first.Engine.RoomStatus(1).empty());
    EXPECT_EQ(std::ranges::count(first.Events.Take(), "JoinFailed 0"), 0);

    ASSERT_TRUE(first.Engine.RoomJoin(0, "ABC123", "a.name.that.is.none.example/ops"));
    ASSERT_TRUE(first.Engine.RoomJoin(2, "ABC123", silent.Room("ops")));
    const auto begin = Clock::now();
    first.Engine.Stop();
    EXPECT_LT(Clock::now() - begin, std::chrono::seconds(2)) << "whatever a look-up waits for";
    ASSERT_NO_FATAL_FAILURE(StartEngine(first));
    EXPECT_TRUE(first.Events.Seen().empty());
    EXPECT_EQ(first.Engine.Room(0).Presence, RoomPresence::Out);
}

TEST_F(VoiceAtServerTest, ARoomIsJoinedAndLeftInOrder) {
    ASSERT_NO_FATAL_FAILURE(StartEngine(first));
    ASSERT_TRUE(first.Engine.RoomJoin(0, first.Name, server.Room("122.800")));
    EXPECT_EQ(first.Engine.Room(0).Presence, RoomPresence::Joining);
    EXPECT_TRUE(first.Events.Seen().empty());
    ASSERT_TRUE(HasRaised(first, "JoinSucceed 0"));
    EXPECT_TRUE(first.Engine.AudioRuns());
    EXPECT_EQ(first.Engine.RoomStatus(0), "In 122.800");
    Texts events = first.Events.Take();
    EXPECT_GT(std::erase(events, "Status 0"), 0U);
    EXPECT_EQ(events, (Texts{"AudioStarted", "JoinSucceed 0"}));
    EXPECT_TRUE(Until([&] { return first.Engine.InputStatus() && first.Engine.OutputStatus(Headset); }));

    first.Engine.RoomLeave(0);
    ASSERT_TRUE(HasRaised(first, "Left 0"));
    EXPECT_EQ(first.Events.Take(), (Texts{"AudioStopped", "Status 0", "Left 0"}));
}

TEST_F(VoiceAtServerTest, ARoomIsChangedAsThePanelDoesItAndOnlyTheLastWishHasAnOutcome) {
    ASSERT_NO_FATAL_FAILURE(StartEngine(first));
    ASSERT_NO_FATAL_FAILURE(Enter(first, 0, server.Room("tower")));
    for (const char* const channel : {"ground", "apron", "delivery"}) {
        first.Engine.RoomLeave(0);
        ASSERT_TRUE(first.Engine.RoomJoin(0, first.Name, server.Room(channel)));
    }
    ASSERT_TRUE(HasRaised(first, "JoinSucceed 0"));
    EXPECT_EQ(first.Engine.RoomStatus(0), "In delivery");
    Texts events = first.Events.Take();
    std::erase(events, "Status 0");
    EXPECT_EQ(events, (Texts{"AudioStopped", "AudioStarted", "JoinSucceed 0"}));
}

TEST_F(VoiceAtServerTest, WhatIsSaidIsHeardWhileTheRoomIsOpenAndNoLonger) {
    Listen({"ear2", "speakers2", "ear1"});
    for (Pilot* const pilot : {&first, &second}) {
        ASSERT_NO_FATAL_FAILURE(StartEngine(*pilot));
        pilot->Engine.ChannelOutput(0, Headset, true);
        ASSERT_NO_FATAL_FAILURE(Enter(*pilot, 0, server.Room("tower")));
    }
    Speak("mouth1");
    first.Engine.RoomMute(0, false);
    EXPECT_TRUE(IsHeardAt("ear2"));
    EXPECT_TRUE(HasRaised(second, "RoomAudioStarted 0"));
    EXPECT_TRUE(second.Engine.Room(0).Audio);
    EXPECT_LT(LevelAt("speakers2"), Heard - 20) << "not routed";
    EXPECT_LT(LevelAt("ear1"), Heard - 20) << "one's own voice";
    second.Engine.ChannelOutput(0, Speakers, true);
    second.Engine.ChannelOutput(0, Headset, false);
    EXPECT_TRUE(IsHeardAt("speakers2"));
    EXPECT_TRUE(IsSilentAt("ear2"));
    first.Engine.RoomMute(0, true);
    EXPECT_TRUE(IsSilentAt("speakers2"));
    EXPECT_TRUE(HasRaised(second, "RoomAudioStopped 0"));

    // The gate lets nothing through that is quieter.
    first.Engine.InputSquelch(99);
    second.Events.Take();
    first.Engine.RoomMute(0, false);
    EXPECT_LT(SteadyLevelAt("speakers2"), Heard - 20);
    EXPECT_TRUE(second.Events.Seen().empty());
    first.Engine.InputSquelch(10);
    EXPECT_TRUE(IsHeardAt("speakers2"));
    EXPECT_TRUE(HasRaised(second, "RoomAudioStarted 0"));

    second.Events.Take();
    second.Engine.RoomLeave(0);
    EXPECT_TRUE(HasRaised(second, "Left 0"));
    EXPECT_TRUE(IsSilentAt("speakers2"));
    Texts events = second.Events.Take();
    std::erase(events, "Status 0");
    EXPECT_EQ(events, (Texts{"RoomAudioStopped 0", "AudioStopped", "Left 0"}));
}

TEST_F(VoiceAtServerTest, TwoRoomsInOneChannelAreHeardOnceAtAllTheirOutputs) {
    Listen({"ear2", "speakers2"});
    for (Pilot* const pilot : {&first, &second}) ASSERT_NO_FATAL_FAILURE(StartEngine(*pilot));
    ASSERT_NO_FATAL_FAILURE(Enter(first, 0, server.Room("tower")));
    ASSERT_NO_FATAL_FAILURE(Enter(second, 0, server.Room("tower")));
    second.Engine.ChannelOutput(0, Headset, true);
    Speak("mouth1");
    first.Engine.RoomMute(0, false);
    ASSERT_TRUE(IsHeardAt("ear2"));
    const double once = SteadyLevelAt("ear2");

    ASSERT_NO_FATAL_FAILURE(Enter(second, 1, server.Room("tower")));
    second.Engine.ChannelOutput(1, Headset, true);
    second.Engine.ChannelOutput(1, Speakers, true);
    // It may have begun before the joining was seen.
    ASSERT_TRUE(Until([this] { return second.Engine.Room(1).Audio; }));
    EXPECT_NEAR(SteadyLevelAt("ear2"), once, LessThanTwice);
    EXPECT_NEAR(SteadyLevelAt("speakers2"), once, LessThanTwice);
    second.Engine.RoomLeave(0);
    ASSERT_TRUE(HasRaised(second, "Left 0"));
    EXPECT_TRUE(IsHeardAt("ear2"));
    EXPECT_NEAR(SteadyLevelAt("ear2"), once, LessThanTwice);
}

TEST_F(VoiceAtServerTest, AServerThatDiesAndComesBackIsJoinedAgainByItself) {
    ASSERT_NO_FATAL_FAILURE(StartEngine(first));
    ASSERT_NO_FATAL_FAILURE(Enter(first, 1, server.Room("tower")));
    server.Kill();
    ASSERT_TRUE(HasRaised(first, "Left 1"));
    EXPECT_EQ(first.Engine.RoomStatus(1), "Reconnecting");
    EXPECT_EQ(first.Engine.Room(1).Presence, RoomPresence::Out);
    server.Start();
    ASSERT_TRUE(HasRaised(first, "JoinSucceed 1"));
    Texts events = first.Events.Take();
    std::erase(events, "Status 1");
    EXPECT_EQ(events, (Texts{"AudioStopped", "Left 1", "AudioStarted", "JoinSucceed 1"}));
}

TEST_F(VoiceAtServerTest, ADeviceThatIsPulledIsToldAndWorksAgainWhenItIsBack) {
    ASSERT_NO_FATAL_FAILURE(StartEngine(first));
    ASSERT_NO_FATAL_FAILURE(Enter(first, 0, server.Room("tower")));
    int changes = 0;
    const Ticket watch = first.Engine.Observe([&] { ++changes; });
    hand->Unload(modules["ear1"]);
    ASSERT_TRUE(Until([&] {
        return first.Engine.Output(Headset).Failed && first.Engine.InputStatus() && first.Engine.OutputStatus(Speakers);
    }));
    EXPECT_FALSE(first.Engine.OutputStatus(Headset));
    EXPECT_TRUE(Until([&] { return changes > 0; }));
    hand->Load("module-null-sink", "rate=48000 sink_name=ear1");
    ASSERT_TRUE(Until([&] { return first.Engine.OutputStatus(Headset); }));
    first.Engine.InputDevice(1);
    ASSERT_TRUE(Until([&] { return !first.Engine.InputStatus(); })) << "there is no such microphone";
    first.Engine.RoomLeave(0);
    EXPECT_TRUE(Until([&] { return first.Engine.InputStatus(); })) << "nothing is wanted of it";
}

TEST_F(VoiceEngineTest, APasswordIsAskedForAndGiven) {
    mumble::VoiceServerSetting guarded;
    guarded.Password = "kettle";
    const mumble::VoiceServerRig server(guarded);
    ASSERT_NO_FATAL_FAILURE(StartEngine(first));
    ASSERT_TRUE(first.Engine.RoomJoin(0, "ABC123", server.Room("tower")));
    ASSERT_TRUE(Until([&] { return first.Dialogs.IsAsked(); }));
    EXPECT_EQ(first.Dialogs.Asked, Texts{server.Address()});
    first.Dialogs.Answer("kettle");
    ASSERT_TRUE(HasRaised(first, "JoinSucceed 0")) << first.Engine.RoomStatus(0);
    EXPECT_FALSE(first.Dialogs.IsAsked());
    first.Engine.Stop();

    Pilot other(loop, "2");
    ASSERT_NO_FATAL_FAILURE(StartEngine(other));
    ASSERT_TRUE(other.Engine.RoomJoin(0, "XYZ789", server.Room("tower")));
    ASSERT_TRUE(Until([&] { return other.Dialogs.IsAsked(); }));
    other.Dialogs.Answer(std::nullopt);
    ASSERT_TRUE(HasRaised(other, "JoinFailed 0"));
    ASSERT_TRUE(other.Engine.RoomJoin(0, "XYZ789", server.Room("tower")));
    ASSERT_TRUE(Until([&] { return other.Dialogs.IsAsked(); }));
    other.Engine.Stop();
    EXPECT_FALSE(other.Dialogs.IsAsked()) << "the question is taken back";
}

TEST_F(VoiceEngineTest, ACalibrationTriesTheDevicesWithoutAnyServer) {
    Listen({"ear1"});
    Speak("mouth1");
    first.Dialogs.Calibration = [&](VoiceTrial& trial, const Squelch& now) {
        EXPECT_EQ(now.Input, 0);
        EXPECT_TRUE(Until([&] { return trial.MicrophoneWorks() && trial.HeadsetWorks(); }));
        EXPECT_TRUE(Until([&] { return trial.TakeInputLevel() > 60; }));
        trial.TakeOutputLevel();
        EXPECT_LT(LevelAt("ear1"), Heard - 20);
        trial.HearMyself(true);
        EXPECT_TRUE(IsHeardAt("ear1"));
        EXPECT_GT(trial.TakeOutputLevel(), 60);
        trial.HearMyself(false);
        EXPECT_TRUE(IsSilentAt("ear1"));
        return std::optional<Squelch>(Squelch{33, 44});
    };
    float input = 0;
    float output = 0;
    ASSERT_TRUE(first.Engine.Calibrate(0, 0, input, output));
    EXPECT_EQ(input, 33);
    EXPECT_EQ(output, 44);
    EXPECT_EQ(first.Engine.InputSquelchValue(), 33);
    EXPECT_EQ(first.Engine.OutputSquelchValue(), 44);
    EXPECT_EQ(pulse::Pactl({"list", "short", "source-outputs"}).find("\n"), std::string::npos) << "the probe's alone";

    first.Dialogs.Calibration = [&](VoiceTrial& trial, const Squelch&) {
        EXPECT_TRUE(Until([&] { return trial.HeadsetWorks(); }));
        EXPECT_FALSE(trial.MicrophoneWorks()) << "there is none of that name";
        return std::optional<Squelch>();
    };
    EXPECT_FALSE(first.Engine.Calibrate(1, 0, input, output));
    EXPECT_EQ(input, 33);
    ASSERT_NO_FATAL_FAILURE(StartEngine(first));
    first.Dialogs.Calibration = [](VoiceTrial&, const Squelch&) { return std::optional<Squelch>(Squelch{1, 2}); };
    EXPECT_FALSE(first.Engine.Calibrate(0, 0, input, output)) << "it runs";
}

}  // namespace
}  // namespace orvelle
