// Which voice engine serves, beside a sound server of the test's own, and without one.
#include "apps/VoiceEngines.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "tests/apps/voice/NoVoiceDialogs.h"
#include "tests/linux/ServeUntil.h"
#include "tests/pulse/ServerHand.h"
#include "tests/pulse/SoundServers.h"

namespace orvelle {
namespace {

// In place of the module's: it is there, and knows by whom it was made.
class MadeEngine : public HeardVoiceEngine {
public:
    explicit MadeEngine(VoiceDevices& voiceDevices) : Devices(voiceDevices) { made = this; }
    ~MadeEngine() override { made = nullptr; }

    bool Running() override { return false; }
    bool Start(Long) override { return true; }
    void Stop() override {}
    void InputSquelch(double) override {}
    void OutputSquelch(double) override {}
    std::string InputDevices() override { return Devices.InputNames(); }
    std::string OutputDevices() override { return Devices.OutputNames(); }
    void InputDevice(Long) override {}
    void OutputDevice(Long, Long) override {}
    void OutputVolume(Long, Long) override {}
    void SignalVolume(Long, Long) override {}
    void OutputFilter(Long, bool) override {}
    void ChannelOutput(Long, Long, bool) override {}
    bool InputStatus() override { return false; }
    bool OutputStatus(Long) override { return false; }
    bool RoomJoin(Long, const std::string&, const std::string&) override { return false; }
    void RoomLeave(Long) override {}
    void RoomMute(Long, bool) override {}
    std::string RoomStatus(Long) override { return ""; }
    bool Calibrate(Long, Long, float&, float&) override { return false; }
    bool IsRunning() const override { return false; }
    bool IsStarting() const override { return false; }
    bool AudioRuns() const override { return false; }
    const VoiceRoom& Room(Long) const override { return room; }
    const VoiceOutput& Output(Long) const override { return output; }
    Long Microphone() const override { return -1; }
    bool InputFailed() const override { return false; }
    double InputSquelchValue() const override { return 0; }
    double OutputSquelchValue() const override { return 0; }
    void Count(Long, std::function<void(const speech::BlockCounts&)>) override {}
    Ticket Observe(std::function<void()>) override { return {}; }

    VoiceDevices& Devices;
    static inline MadeEngine* made = nullptr;

private:
    VoiceRoom room;
    VoiceOutput output;
};

HeardVoiceEngine* MakeEngine(EventLoop&, VoiceDevices& devices, VoiceDialogs&, const std::filesystem::path&) {
    return new MadeEngine(devices);
}

class VoiceEnginesTest : public testing::Test {
protected:
    VoiceEnginesTest() {
        engines.Told = [this](const std::string& sentence) { told.push_back(sentence); };
    }

    void StartServer() {
        server.Start();
        pulse::ServerHand hand;
        hand.AddSink("headset", "Pilot's headset");
        hand.AddSource(pulse::PulseAudioServer::Microphone, "microphone", "Pilot's microphone");
        ASSERT_TRUE(linux::ServeUntil(loop, [this] {
            return sound.Devices.Find(pulse::DeviceKind::Source, "microphone") &&
                   sound.Devices.Find(pulse::DeviceKind::Sink, "headset") && sound.Devices.AreKnown();
        }));
        practice.Devices.SetInputs(sound.Devices.InputNames());
        practice.Devices.SetOutputs(sound.Devices.OutputNames());
    }
    bool HeardServes() {
        const ends::ServingEngine chosen = engines.Choose();
        const bool isHeard = chosen.Control != &practice.VVL;
        EXPECT_EQ(chosen.Control, isHeard ? static_cast<VoiceEngineControl*>(MadeEngine::made) : &practice.VVL);
        EXPECT_EQ(practice.VVL.IsServing(), !isHeard);
        return isHeard;
    }

    linux::PollEventLoop loop;
    pulse::SoundFolder folder;
    pulse::PulseAudioServer server;
    SoundServer sound{loop};
    embedded::SetUp practice{loop};
    NoVoiceDialogs dialogs;
    int loads = 0;
    std::string missing;  // why the module can't be loaded, "" if it can
    VoiceEngines engines{loop, sound, practice, dialogs, folder.Path() / "voice", [this](std::string& why) {
                             ++loads;
                             why = missing;
                             return missing.empty() ? &MakeEngine : nullptr;
                         }};
    std::vector<std::string> told;
};

TEST_F(VoiceEnginesTest, WithoutASoundServerTheEmbeddedOneServesAndNothingIsLoaded) {
    EXPECT_FALSE(HeardServes());
    EXPECT_EQ(loads, 0);
    EXPECT_TRUE(told.empty());
}

TEST_F(VoiceEnginesTest, AServerThatComesLaterCountsAtTheNextStart) {
    EXPECT_FALSE(HeardServes());
    ASSERT_NO_FATAL_FAILURE(StartServer());
    EXPECT_EQ(loads, 0) << "before the start";
    EXPECT_TRUE(HeardServes());
    EXPECT_TRUE(HeardServes());
    EXPECT_EQ(loads, 1);
    server.Kill();
    ASSERT_TRUE(linux::ServeUntil(loop, [this] { return !sound.Devices.AreKnown(); }));
    EXPECT_FALSE(HeardServes());
    EXPECT_NE(MadeEngine::made, nullptr) << "it may serve again";
    EXPECT_TRUE(told.empty());
}

TEST_F(VoiceEnginesTest, AModuleThatIsMissingIsToldOnceAndTheEmbeddedOnePractises) {
    missing = "the module orvelle-voice.so is not installed";
    ASSERT_NO_FATAL_FAILURE(StartServer());
    EXPECT_FALSE(HeardServes());
    EXPECT_FALSE(HeardServes());
    EXPECT_EQ(loads, 1);
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0],
              "The voice engine only practises, and nobody hears you by it: the module orvelle-voice.so is not "
              "installed.");
}

TEST_F(VoiceEnginesTest, WhatTheHeardOneTellsIsTold) {
    ASSERT_NO_FATAL_FAILURE(StartServer());
    ASSERT_TRUE(HeardServes());
    MadeEngine::made->Told("A sentence.");
    EXPECT_EQ(told, std::vector<std::string>{"A sentence."});
}

TEST_F(VoiceEnginesTest, DevicesAreKnownByTheServersOwnNames) {
    ASSERT_NO_FATAL_FAILURE(StartServer());
    ASSERT_TRUE(HeardServes());
    const VoiceDevices& devices = MadeEngine::made->Devices;
    EXPECT_NE(devices.InputNames().find("Pilot's microphone\n"), std::string::npos);
    EXPECT_NE(devices.OutputNames().find("Pilot's headset\n"), std::string::npos);
    const auto place = [](const std::vector<std::string>& titles, const std::string& title) {
        return static_cast<Long>(std::ranges::find(titles, title) - titles.begin());
    };
    EXPECT_EQ(devices.Microphone(place(practice.Devices.InputNames(), "Pilot's microphone")), "microphone");
    EXPECT_EQ(devices.Output(place(practice.Devices.OutputNames(), "Pilot's headset")), "headset");
    for (const Long none : {-1, -2, 99}) {
        EXPECT_EQ(devices.Microphone(none), "");
        EXPECT_EQ(devices.Output(none), "");
    }
    practice.Devices.SetInputs({"DirectSound - Microphone"});
    EXPECT_EQ(devices.Microphone(0), "") << "of a list from before the server";
}

}  // namespace
}  // namespace orvelle
