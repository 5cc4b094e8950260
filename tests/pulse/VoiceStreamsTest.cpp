// The voice's streams over a real sound server; each case with PulseAudio and with PipeWire.
#include "adapters/pulse/VoiceStreams.h"

#include <csignal>
#include <filesystem>
#include <iostream>
#include <iterator>
#include <thread>

#include "tests/pulse/VoiceRig.h"

namespace orvelle::pulse {

template <typename Server>
class VoiceStreamsTest : public VoiceRig<Server> {};

using Servers = testing::Types<PulseAudioServer, PipeWireServer>;
struct VoiceServerNames {
    template <typename Server>
    static std::string GetName(int) {
        return std::is_same_v<Server, PulseAudioServer> ? "PulseAudio" : "PipeWire";
    }
};
TYPED_TEST_SUITE(VoiceStreamsTest, Servers, VoiceServerNames);

TYPED_TEST(VoiceStreamsTest, WhatIsSpokenIsRecordedAndWhatIsWrittenIsHeard) {
    this->Probe();
    this->ProbeMouth();
    EXPECT_TRUE(this->NothingWorks());
    ASSERT_TRUE(this->OpenAll());
    EXPECT_FALSE(this->streams.OutputWorks(2));
    EXPECT_TRUE(this->RecordsWhatIsSpoken());
    this->Speak(true, false);
    EXPECT_TRUE(this->Hears("ear.monitor", this->Tones[0]));
    this->Speak(false, true);
    EXPECT_TRUE(this->Hears("ear.monitor", this->Tones[1]));
    EXPECT_TRUE(this->HearsNoMore("ear.monitor", this->Tones[0]));
    this->Speak(false, false);
    EXPECT_TRUE(this->HearsNoMore("ear.monitor", this->Tones[1]));
    const double recording = this->RecordingDelay();
    const double playing = this->PlayingDelay();
    std::cout << "recorded " << recording << " ms after the monitor, heard " << playing << " ms after it was written\n";
    EXPECT_LT(recording, 200);
    EXPECT_LT(playing, 200);
}

TYPED_TEST(VoiceStreamsTest, BothOutputsOfOneDeviceAreHeard) {
    this->Probe();
    this->ProbeOther();
    ASSERT_TRUE(this->OpenAll());
    this->Speak(true, true);
    EXPECT_TRUE(this->Hears("ear.monitor", this->Tones[0]));
    EXPECT_TRUE(this->Hears("ear.monitor", this->Tones[1]));
    this->streams.SetOutput(Speakers, "other");
    EXPECT_TRUE(this->Hears("other.monitor", this->Tones[1]));
    EXPECT_TRUE(this->HearsNoMore("ear.monitor", this->Tones[1]));
    EXPECT_TRUE(this->Hears("ear.monitor", this->Tones[0]));
}

TYPED_TEST(VoiceStreamsTest, OutputsOfSilenceRestUntilTheyAreRoused) {
    this->Probe();
    ASSERT_TRUE(this->OpenAll());
    for (int time = 0; time < 2; ++time) {
        ASSERT_TRUE(this->OutputsRest());
        const long before = this->blocksWanted;
        const int changesBefore = this->changes;
        this->Serve(std::chrono::milliseconds(2000));
        EXPECT_EQ(this->blocksWanted, before);
        EXPECT_EQ(this->changes, changesBefore);
        EXPECT_TRUE(this->AllWork());
        this->Speak(true, true);
        EXPECT_TRUE(this->Hears("ear.monitor", this->Tones[0]));
        EXPECT_TRUE(this->Hears("ear.monitor", this->Tones[1]));
        this->Speak(false, false);
    }
    ASSERT_TRUE(this->OutputsRest());
    const double playing = this->PlayingDelay();
    std::cout << "after a rest: heard " << playing << " ms after it was written\n";
    EXPECT_LT(playing, 200);
}

TYPED_TEST(VoiceStreamsTest, OtherMixersShowWhoseStreamsTheyAre) {
    ASSERT_TRUE(this->OpenAll());
    const std::string all = Pactl({"list", "sink-inputs"}) + Pactl({"list", "source-outputs"});
    for (const std::string word :
         {"application.name = \"OrvelleCP\"", "media.name = \"Headset\"", "media.name = \"Speakers\"",
          "media.name = \"Microphone\"", "media.role = \"phone\"", "icon_name = \"net.orvelle.orvellecp\""})
        EXPECT_NE(all.find(word), std::string::npos) << word << " in\n" << all;
    EXPECT_TRUE(this->HasStreams("clients"));
}

TYPED_TEST(VoiceStreamsTest, ANamedDeviceThatIsPulledFailsUntilItIsBack) {
    ASSERT_TRUE(this->OpenAll());
    this->hand->Unload(this->earModule);
    std::cout << "sink gone: told after " << this->TimeUntil([this] {
        return !this->streams.OutputWorks(Headset) && !this->streams.OutputWorks(Speakers);
    }) << " ms\n";
    EXPECT_TRUE(this->streams.MicrophoneWorks());
    this->hand->Unload(this->microphoneModule);
    std::cout << "source gone: told after " << this->TimeUntil([this] { return this->NothingWorks(); }) << " ms\n";
    // Nothing flickers while they are sought.
    this->Serve(std::chrono::milliseconds(100));
    const int before = this->changes;
    this->Serve(std::chrono::milliseconds(1500));
    EXPECT_EQ(this->changes, before);

    this->AddSink("ear");
    std::cout << "sink back: works after " << this->TimeUntil([this] { return this->OutputsWork(); }) << " ms\n";
    this->AddMicrophone();
    std::cout << "source back: works after " << this->TimeUntil([this] { return this->AllWork(); }) << " ms\n";
    this->Probe();
    this->Speak(true, true);
    EXPECT_TRUE(this->Hears("ear.monitor", this->Tones[0]));
    EXPECT_TRUE(this->Hears("ear.monitor", this->Tones[1]));
}

TYPED_TEST(VoiceStreamsTest, TheDefaultDevicesAreFollowed) {
    this->Probe();
    this->ProbeOther();
    this->ProbeMouth();
    this->hand->SetDefault(DeviceKind::Sink, "other");
    this->hand->SetDefault(DeviceKind::Source, "other.monitor");
    this->streams.SetOutput(Headset, "");
    this->streams.SetMicrophone("");
    ASSERT_TRUE(this->OpenAll());
    this->Speak(true, false);
    EXPECT_TRUE(this->Hears("other.monitor", this->Tones[0]));
    this->hand->SetDefault(DeviceKind::Sink, "ear");
    EXPECT_TRUE(this->Hears("ear.monitor", this->Tones[0]));
    EXPECT_TRUE(this->HearsNoMore("other.monitor", this->Tones[0]));
    this->hand->SetDefault(DeviceKind::Source, this->MouthsMonitor);
    EXPECT_TRUE(this->RecordsWhatIsSpoken());
    // One that is gone gives way to another one.
    this->hand->Unload(this->earModule);
    EXPECT_TRUE(this->Until([this] { return this->streams.OutputWorks(Headset); }));
}

TYPED_TEST(VoiceStreamsTest, AServerThatIsKilledIsSoughtUntilOneIsBack) {
    ASSERT_TRUE(this->OpenAll());
    this->hand.reset();
    this->server.Kill();
    std::cout << "server gone: told after " << this->TimeUntil([this] { return this->NothingWorks(); }) << " ms\n";
    this->Serve(std::chrono::milliseconds(1200));
    this->server.Start();
    this->Furnish();
    std::cout << "server back: all works " << this->TimeUntil([this] { return this->AllWork(); }) << " ms later\n";
    this->Probe();
    this->Speak(true, false);
    EXPECT_TRUE(this->Hears("ear.monitor", this->Tones[0]));
}

TYPED_TEST(VoiceStreamsTest, AServerThatHangsForTenSecondsLeavesNothingOldBehind) {
    ASSERT_TRUE(this->OpenAll());
    this->hand.reset();
    this->server.Signal(SIGSTOP);
    const Moment stopped = Now();
    const double told = this->TimeUntil([this] { return this->NothingWorks(); });
    std::cout << "server hangs: told after " << told << " ms\n";
    EXPECT_LT(told, 4000);
    int turns = 0;
    ASSERT_TRUE(this->Until([&] { return ++turns > 0 && Now() - stopped > std::chrono::seconds(10); }));
    EXPECT_GT(turns, 1000);
    const long recordedBefore = this->blocksRecorded;
    const long wantedBefore = this->blocksWanted;
    this->server.Signal(SIGCONT);
    const Moment begin = Now();
    std::cout << "server goes on: works after " << this->TimeUntil([this] { return this->AllWork(); }) << " ms\n";
    this->Serve(std::chrono::milliseconds(500));
    const double blocks = Milliseconds(Now() - begin) / speech::BlockMilliseconds;
    EXPECT_LT(this->blocksRecorded - recordedBefore, blocks * 9 / 8 + 7);
    EXPECT_LT(this->blocksWanted - wantedBefore, 2 * (blocks * 9 / 8 + 7));
    this->hand.emplace();
    this->Probe();
    this->ProbeMouth();
    EXPECT_LT(this->RecordingDelay(), 200);
    EXPECT_LT(this->PlayingDelay(), 200);
}

// A hang that is over before the server counts as lost; our own, short enough for the streams to go on; and that of
// both, as a computer's that is suspended.
TYPED_TEST(VoiceStreamsTest, AShortHangOfEitherSideLeavesNothingOldBehind) {
    this->Probe();
    this->ProbeMouth();
    ASSERT_TRUE(this->OpenAll());
    enum class Who { Server, We, Both };
    for (const Who who : {Who::Server, Who::We, Who::Both}) {
        if (who != Who::We) this->server.Signal(SIGSTOP);
        if (who == Who::Server)
            this->Serve(std::chrono::milliseconds(1500));
        else
            std::this_thread::sleep_for(std::chrono::milliseconds(who == Who::We ? 700 : 1500));
        const long recordedBefore = this->blocksRecorded;
        const long wantedBefore = this->blocksWanted;
        if (who != Who::We) this->server.Signal(SIGCONT);
        const Moment begin = Now();
        this->Serve(std::chrono::milliseconds(300));
        ASSERT_TRUE(this->Until([this] { return this->AllWork(); }));
        const double blocks = Milliseconds(Now() - begin) / speech::BlockMilliseconds;
        EXPECT_LT(this->blocksRecorded - recordedBefore, blocks * 9 / 8 + 7);
        EXPECT_LT(this->blocksWanted - wantedBefore, 2 * (blocks * 9 / 8 + 7));
        const double recording = this->RecordingDelay();
        const double playing = this->PlayingDelay();
        std::cout << "after a hang: recorded after " << recording << " ms, heard after " << playing << " ms\n";
        EXPECT_LT(recording, 200);
        EXPECT_LT(playing, 200);
    }
}

TYPED_TEST(VoiceStreamsTest, NamesThatNoDeviceHasDoNotWork) {
    for (const std::string& name :
         {std::string("nothing"), std::string("a b/\"'\\;=\n\x01\xff"), std::string(10000, 'x'), std::string("@NONE@"),
          std::string("ear.monitor"), std::string("Kopfhörer 🎧")}) {
        this->streams.SetMicrophone(name);
        this->streams.SetOutput(Headset, name);
        this->streams.OpenMicrophone();
        this->streams.OpenOutputs();
        ASSERT_TRUE(this->Until([this] { return this->streams.OutputWorks(Speakers); }));
        if (name == "ear.monitor") {
            EXPECT_TRUE(this->Until([this] { return this->streams.MicrophoneWorks(); }));
        } else {
            this->Serve(std::chrono::milliseconds(300));
            EXPECT_FALSE(this->streams.MicrophoneWorks()) << name;
        }
        EXPECT_FALSE(this->streams.OutputWorks(Headset)) << name;
        this->streams.CloseMicrophone();
        this->streams.CloseOutputs();
    }
    this->streams.SetOutput(-1, "ear");
    this->streams.SetOutput(2, "ear");
    this->streams.SetMicrophone("microphone");
    this->streams.SetOutput(Headset, "ear");
    EXPECT_TRUE(this->OpenAll());
}

TYPED_TEST(VoiceStreamsTest, WhatIsClosedIsGoneAndCostsNothing) {
    ASSERT_TRUE(this->OpenAll());
    this->streams.CloseMicrophone();
    EXPECT_FALSE(this->streams.MicrophoneWorks());
    EXPECT_TRUE(this->Until([this] { return !this->HasStreams("source-outputs"); }));
    EXPECT_TRUE(this->OutputsWork());
    this->streams.CloseOutputs();
    EXPECT_TRUE(this->NothingWorks());
    EXPECT_TRUE(this->Until([this] { return !this->HasStreams("sink-inputs") && !this->HasStreams("clients"); }));
    const int tasks = this->loop.Tasks;
    this->hand->Unload(this->earModule);
    this->AddSink("ear");
    this->Serve(std::chrono::milliseconds(1200));
    EXPECT_EQ(this->loop.Tasks, tasks);
}

TYPED_TEST(VoiceStreamsTest, TwentyTimesOpenedAndClosedLeavesNothing) {
    const auto descriptors = [] {
        return std::distance(std::filesystem::directory_iterator("/proc/self/fd"),
                             std::filesystem::directory_iterator());
    };
    const auto before = descriptors();
    for (int time = 0; time < 20; ++time) {
        this->streams.OpenMicrophone();
        this->streams.OpenOutputs();
        // Also before the server has made them, and right away.
        if (time % 3 == 1) {
            ASSERT_TRUE(this->Until([this] { return this->AllWork(); }));
        }
        if (time % 3 == 2) this->Serve(std::chrono::milliseconds(time));
        this->streams.CloseMicrophone();
        this->streams.CloseOutputs();
        if (time % 2 == 0) this->Serve(std::chrono::milliseconds(1));
    }
    EXPECT_TRUE(
        this->Until([this] { return !this->HasStreams("sink-inputs") && !this->HasStreams("source-outputs"); }));
    EXPECT_EQ(descriptors(), before);
}

TYPED_TEST(VoiceStreamsTest, WhoTakesABlockMayCloseTheStream) {
    this->streams.Recorded = [this](const speech::Block&) {
        this->streams.CloseMicrophone();
        if (++this->blocksRecorded < 5) this->streams.OpenMicrophone();
    };
    this->streams.Wanted = [this](Long, speech::Block&) {
        this->streams.CloseOutputs();
        if (++this->blocksWanted < 5) this->streams.OpenOutputs();
    };
    this->streams.OpenMicrophone();
    this->streams.OpenOutputs();
    EXPECT_TRUE(this->Until([this] { return this->blocksRecorded == 5 && this->blocksWanted == 5; }));
    EXPECT_TRUE(this->NothingWorks());
}

// The other server suspends a device only while nobody uses it.
class SuspendedDeviceTest : public VoiceRig<PulseAudioServer> {};

TEST_F(SuspendedDeviceTest, ADeviceThatStandsStillDoesNotWork) {
    ASSERT_TRUE(OpenAll());
    ASSERT_TRUE(OutputsRest());
    Pactl({"suspend-sink", "ear", "1"});
    double told = TimeUntil([this] { return !OutputsWork(); });
    std::cout << "sink suspended: told after " << told << " ms\n";
    EXPECT_LT(told, 4000);
    EXPECT_TRUE(streams.MicrophoneWorks());
    Pactl({"suspend-source", "microphone", "1"});
    told = TimeUntil([this] { return !streams.MicrophoneWorks(); });
    std::cout << "source suspended: told after " << told << " ms\n";
    EXPECT_LT(told, 4000);
    Pactl({"suspend-sink", "ear", "0"});
    Pactl({"suspend-source", "microphone", "0"});
    std::cout << "both back: work after " << TimeUntil([this] { return AllWork(); }) << " ms\n";
}

}  // namespace orvelle::pulse
