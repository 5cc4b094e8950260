// The voice's streams over a real sound server; each case with PulseAudio and with PipeWire.
#include <gtest/gtest.h>

#include <iostream>
#include <thread>

#include "tests/pulse/ServerHand.h"
#include "tests/pulse/SoundProbe.h"
#include "tests/pulse/SoundServers.h"

namespace orvelle::pulse {
namespace {

template <typename Server>
class VoiceStreamsTest : public testing::Test {};

using Servers = testing::Types<PulseAudioServer, PipeWireServer>;
TYPED_TEST_SUITE(VoiceStreamsTest, Servers);

TYPED_TEST(VoiceStreamsTest, Probe) {
    SoundFolder folder;
    TypeParam server;
    server.Start();
    ServerHand hand;
    hand.Load("module-null-sink", "sink_name=mouth rate=48000");
    SoundProbe probe;
    probe.Record("mouth.monitor");
    probe.Play("mouth", Burst(1000, 100, 300), Playing::AgainAndAgain);
    std::this_thread::sleep_for(std::chrono::seconds(3));
    const SoundRecording heard = probe.Take("mouth.monitor");
    std::cout << heard.Samples().size() << " samples\n";
    for (const auto& [from, to] : heard.Sounds())
        std::cout << std::chrono::duration<double, std::milli>(to - from).count() << " ms " << heard.ToneLevel(1000, from, to) << " "
                  << heard.Level(from, to) << " " << heard.ToneLevel(1400, from, to) << " after " << std::chrono::duration<double, std::milli>(from - heard.At(0)).count() << "\n";
}

}  // namespace
}  // namespace orvelle::pulse
