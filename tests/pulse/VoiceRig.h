// A sound server with a source "microphone", which is silent, and three null sinks: "mouth", whose monitor is the
// microphone of tests that speak, "ear" and "other", that are listened to; the voice's streams on a loop that the test
// serves; and a probe that speaks and listens. What came is kept with its moments.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "adapters/pulse/VoiceStreams.h"
#include "tests/linux/ServeUntil.h"
#include "tests/pulse/ServerHand.h"
#include "tests/pulse/SoundProbe.h"
#include "tests/pulse/SoundServers.h"

namespace orvelle::pulse {

inline Moment Now() { return std::chrono::steady_clock::now(); }
inline double Milliseconds(std::chrono::nanoseconds time) {
    return std::chrono::duration<double, std::milli>(time).count();
}

// Forwards to a loop, and counts what is run there.
class CountingLoop : public EventLoop {
public:
    explicit CountingLoop(EventLoop& countedLoop) : loop(countedLoop) {}

    void Post(Task task) override { loop.Post(Counted(std::move(task))); }
    [[nodiscard]] Ticket After(Long milliseconds, Task task) override {
        return loop.After(milliseconds, Counted(std::move(task)));
    }
    [[nodiscard]] Ticket WhenReadable(int descriptor, Task task) override {
        return loop.WhenReadable(descriptor, Counted(std::move(task)));
    }
    [[nodiscard]] Ticket WhenWritable(int descriptor, Task task) override {
        return loop.WhenWritable(descriptor, Counted(std::move(task)));
    }

    int Tasks = 0;

private:
    Task Counted(Task task) {
        return [this, what = std::move(task)] {
            ++Tasks;
            what();
        };
    }

    EventLoop& loop;
};

template <typename Server>
class VoiceRig : public testing::Test {
protected:
    static constexpr const char* Mouth = "mouth";
    static constexpr const char* MouthsMonitor = "mouth.monitor";
    static constexpr std::array<double, 2> Tones{800, 1300};  // of the headset and the speakers

    VoiceRig() {
        server.Start();
        Furnish();
        streams.SetMicrophone("microphone");
        for (const Long output : {Headset, Speakers}) streams.SetOutput(output, "ear");
        streams.Changed = [this] { ++changes; };
        streams.Recorded = [this](const speech::Block& block) {
            recorded.Add(Now(), block);
            ++blocksRecorded;
        };
        streams.Wanted = [this](Long output, speech::Block& block) { Write(output, block); };
    }

    void Furnish() {
        hand.emplace();
        microphoneModule = AddMicrophone();
        earModule = AddSink("ear");
    }
    std::uint32_t AddSink(const std::string& name) {
        return hand->Load("module-null-sink", "rate=48000 sink_name=" + name);
    }
    std::uint32_t AddMicrophone() {
        const bool isSink = std::string(Server::Microphone) == "module-null-sink";
        return isSink ? hand->AddSource(Server::Microphone, "microphone", "Microphone")
                      : hand->Load(Server::Microphone, "source_name=microphone max_latency_msec=10");
    }
    // Whoever is recorded begins before whoever plays there: one of the servers is slow the other way around.
    void Probe() {
        probe.emplace();
        probe->Record("ear.monitor");
    }
    void ProbeOther() {
        AddSink("other");
        probe->Record("other.monitor");
    }
    void ProbeMouth() {
        AddSink(Mouth);
        probe->Record(MouthsMonitor);
        streams.SetMicrophone(MouthsMonitor);
    }

    // Serves the loop until it is so; false where that takes longer than half a minute.
    bool Until(const std::function<bool()>& isSo) { return linux::ServeUntil(poll, isSo); }
    void Serve(std::chrono::milliseconds time) {
        const Moment end = Now() + time;
        ASSERT_TRUE(Until([end] { return Now() >= end; }));
    }
    // The same for what takes a while to look at: some fifty times a second.
    bool UntilNoticed(const std::function<bool()>& isSo) {
        Moment next = Now();
        return Until([&] {
            if (Now() < next) return false;
            next = Now() + std::chrono::milliseconds(20);
            return isSo();
        });
    }
    // How long that took.
    double TimeUntil(const std::function<bool()>& isSo) {
        const Moment begin = Now();
        EXPECT_TRUE(Until(isSo));
        return Milliseconds(Now() - begin);
    }
    // Our streams, and nobody else's.
    static bool HasStreams(const char* kind) {
        return Pactl({"list", kind}).find("application.name = \"OrvelleCP\"") != std::string::npos;
    }
    bool AllWork() const { return streams.MicrophoneWorks() && OutputsWork(); }
    bool OutputsWork() const { return streams.OutputWorks(Headset) && streams.OutputWorks(Speakers); }
    bool NothingWorks() const {
        return !streams.MicrophoneWorks() && !streams.OutputWorks(Headset) && !streams.OutputWorks(Speakers);
    }
    bool OpenAll() {
        streams.OpenMicrophone();
        streams.OpenOutputs();
        return Until([this] { return AllWork(); });
    }

    // The tone of this output, while it speaks.
    void Write(Long output, speech::Block& block) {
        ++blocksWanted;
        if (!speaks[static_cast<std::size_t>(output)]) return;
        const std::vector<float> tone = Tone(Tones[static_cast<std::size_t>(output)], speech::BlockMilliseconds);
        std::copy(tone.begin(), tone.end(), block.begin());
    }
    void Speak(bool headset, bool speakers) {
        speaks = {headset, speakers};
        streams.RouseOutputs();
    }

    // Whether the outputs are asked for nothing any more; tells by a third of a second in which they weren't.
    bool OutputsRest() {
        long before = blocksWanted;
        Moment since = Now();
        return Until([&] {
            if (std::exchange(before, blocksWanted) != blocksWanted) since = Now();
            return Now() - since > std::chrono::milliseconds(330);
        });
    }
    // Whether the tone comes to be heard there, or not to be heard any more, for a tenth of a second.
    bool Hears(const std::string& source, double hertz) {
        return UntilNoticed([&] { return LevelThere(source, hertz) > LeastHeard; });
    }
    bool HearsNoMore(const std::string& source, double hertz) {
        return UntilNoticed([&] { return LevelThere(source, hertz) < LeastHeard - 10; });
    }
    // Whether the probe's tone is recorded by the streams.
    bool RecordsWhatIsSpoken() {
        constexpr double Spoken = 1000;
        probe->Play(Mouth, Tone(Spoken, 1000), Playing::AgainAndAgain);
        const bool isRecorded =
            UntilNoticed([&] { return recorded.Last(speech::SampleRate / 10).ToneLevel(Spoken) > LeastHeard; });
        probe->Play(Mouth, {}, Playing::Once);
        return isRecorded;
    }

    // What each carries: from the microphone's monitor to Recorded, and from Wanted to the ear's monitor, in
    // milliseconds, the median of some bursts.
    double RecordingDelay() {
        probe->Take(MouthsMonitor);
        recorded = {};
        probe->Play(Mouth, Burst(1000, 60, 150), Playing::AgainAndAgain);
        EXPECT_TRUE(UntilNoticed([this] { return recorded.Sounds().size() > Bursts; }));
        probe->Play(Mouth, {}, Playing::Once);
        return MedianDelay(Begins(probe->Recorded(MouthsMonitor)), Begins(recorded));
    }
    double PlayingDelay() {
        streams.RouseOutputs();
        probe->Take("ear.monitor");
        std::vector<Moment> spoken;
        Moment next = Now();
        Long left = 0;  // of the burst, in blocks
        streams.Wanted = [&](Long output, speech::Block& block) {
            if (output != Headset) return;
            if (left == 0 && Now() >= next) {
                spoken.push_back(Now());
                next = Now() + std::chrono::milliseconds(150);
                left = 6;
            }
            if (left == 0) return;
            --left;
            speaks = {true, false};
            Write(output, block);
        };
        EXPECT_TRUE(UntilNoticed([&] { return Begins(probe->Recorded("ear.monitor")).size() > Bursts; }));
        streams.Wanted = [this](Long output, speech::Block& block) { Write(output, block); };
        speaks = {};
        return MedianDelay(spoken, Begins(probe->Recorded("ear.monitor")));
    }

    static std::vector<Moment> Begins(const SoundRecording& recording) {
        std::vector<Moment> begins;
        for (const auto& [from, to] : recording.Sounds()) begins.push_back(from);
        return begins;
    }
    // From each of the first to the next one of the second.
    static double MedianDelay(const std::vector<Moment>& from, const std::vector<Moment>& to) {
        std::vector<double> delays;
        for (const Moment moment : from) {
            const auto next = std::ranges::lower_bound(to, moment - std::chrono::milliseconds(20));
            if (next != to.end()) delays.push_back(Milliseconds(*next - moment));
        }
        std::ranges::sort(delays);
        return delays.empty() ? 1e9 : delays[delays.size() / 2];
    }

    static constexpr double LeastHeard = -30;
    static constexpr std::size_t Bursts = 5;

    SoundFolder folder;
    Server server;
    linux::PollEventLoop poll;
    CountingLoop loop{poll};
    std::optional<ServerHand> hand;
    std::optional<SoundProbe> probe;
    std::uint32_t microphoneModule = 0;
    std::uint32_t earModule = 0;
    int changes = 0;
    SoundRecording recorded;
    long blocksRecorded = 0;
    long blocksWanted = 0;
    std::array<bool, 2> speaks{};
    VoiceStreams streams{loop};

private:
    double LevelThere(const std::string& source, double hertz) { return probe->Last(source, 100).ToneLevel(hertz); }
};

}  // namespace orvelle::pulse
