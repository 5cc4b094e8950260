// A sound server with one sink, "Headset", and one source, "Microphone", its defaults; the panel's side of it; and
// another program's hand. Events of the mixer are written down as they come, with the level that they tell of.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "adapters/linux/PollEventLoop.h"
#include "apps/SoundServer.h"
#include "tests/linux/ServeUntil.h"
#include "tests/pulse/ServerHand.h"
#include "tests/pulse/SoundServers.h"

namespace orvelle::pulse {

using Texts = std::vector<std::string>;

template <typename Server>
class MixerRig : public testing::Test {
protected:
    static constexpr auto Sink = DeviceKind::Sink;
    static constexpr auto Source = DeviceKind::Source;

    MixerRig() {
        server.Start();
        Furnish();
        Seek();
    }

    // The devices of a server that has just started.
    void Furnish() {
        hand.emplace();
        sinkModule = hand->AddSink("headset", "Headset");
        sourceModule = hand->AddSource(Server::Microphone, "microphone", "Microphone");
        hand->SetDefault(Sink, "headset");
        hand->SetDefault(Source, "microphone");
        EXPECT_TRUE(Until([] {
            const std::string info = Pactl({"info"});
            return info.find("Default Sink: headset") != std::string::npos &&
                   info.find("Default Source: microphone") != std::string::npos;
        }));
        hand->SetPercent(Sink, "headset", 60);
        hand->SetPercent(Source, "microphone", 40);
        EXPECT_TRUE(Until(
            [this] { return hand->Percent(Sink, "headset") == 60 && hand->Percent(Source, "microphone") == 40; }));
    }
    void Seek() {
        sound.emplace(loop);
        Watch();
        EXPECT_TRUE(Until([this] { return sound->Devices.AreKnown(); }));
    }
    void Watch() {
        const auto note = [this](const std::string& name, auto level) {
            return [this, name, level] { events.push_back(name + level()); };
        };
        const auto none = [] { return std::string(); };
        PulseMixer& mixer = sound->Headset;
        mixer.InputOpened = note("InputOpened", none);
        mixer.InputClosed = note("InputClosed", none);
        mixer.OutputOpened = note("OutputOpened", none);
        mixer.OutputClosed = note("OutputClosed", none);
        mixer.MicVolumeChanged = note("Mic ", [&mixer] { return std::to_string(mixer.MicVolume()); });
        mixer.MasterVolumeChanged = note("Master ", [&mixer] { return std::to_string(mixer.MasterVolume()); });
        mixer.WaveVolumeChanged = note("Wave", none);
    }
    void OpenMixer() {
        Mixer().Open();
        ASSERT_TRUE(UntilTold({"InputOpened", "OutputOpened"}));
    }

    PulseMixer& Mixer() { return sound->Headset; }
    // Serves the loop until it is so; false where that takes longer than half a minute.
    bool Until(const std::function<bool()>& isSo) { return linux::ServeUntil(loop, isSo); }
    // Until exactly these events have come.
    bool UntilTold(const Texts& expected) {
        const bool isTold = Until([&] { return events == expected; });
        if (!isTold) ADD_FAILURE() << "told was: " << testing::PrintToString(events);
        events.clear();
        return isTold;
    }
    // Until it is among what has come.
    bool UntilHears(const std::string& event) {
        const bool isTold = Until([&] { return std::ranges::count(events, event) > 0; });
        if (!isTold) ADD_FAILURE() << "told was: " << testing::PrintToString(events);
        events.clear();
        return isTold;
    }

    SoundFolder folder;
    Server server;
    linux::PollEventLoop loop;
    std::optional<ServerHand> hand;
    std::uint32_t sinkModule = 0;
    std::uint32_t sourceModule = 0;
    std::optional<SoundServer> sound;
    Texts events;
};

}  // namespace orvelle::pulse
