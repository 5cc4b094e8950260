// A whole panel at the engine that is heard: as soon as its priority room carries audio, the other room falls silent.
#include <algorithm>
#include <iostream>
#include <memory>
#include <sstream>

#include "adapters/linux/PollEventLoop.h"
#include "apps/OwnModules.h"
#include "apps/voice/VoiceModule.h"
#include "panel/FrmOrvelle.h"
#include "platform/EngineRecord.h"
#include "replay/World.h"
#include "tests/apps/voice/NoVoiceDialogs.h"
#include "tests/heard/EngineRig.h"
#include "tests/heard/Median.h"
#include "tests/linux/ServeUntil.h"

namespace orvelle::heard {

using linux::ServeUntil;
using pulse::Moment;

namespace {

constexpr int Listener = 2;
constexpr double UsualHertz = 600;
constexpr double PriorityHertz = 1100;
constexpr std::size_t Talks = 5;
constexpr int MostTalks = 30;
constexpr double MostMilliseconds = 100;
constexpr std::chrono::milliseconds Window{20};
constexpr double LeastLevel = -50;
constexpr Long HoldTime = 3000;

class ListenersDevices : public VoiceDevices {
public:
    std::string InputNames() const override { return "\n"; }
    std::string OutputNames() const override { return "\n"; }
    std::string Microphone(Long) const override { return SoundOfComputers::Microphone(Listener); }
    std::string Output(Long) const override { return SoundOfComputers::Output(Listener); }
};

class PriorityTest : public EngineRig {
protected:
    PriorityTest() : EngineRig(3) {
        std::string why;
        auto* const make = FunctionOf<NewOrvelleVoiceEngineFunction>(VOICE_MODULE, "NewOrvelleVoiceEngine", why);
        EXPECT_TRUE(make) << why;
        engine.reset(make(loop, devices, dialogs, sounds.Folder() / "engine"));
        world.Store.Put("OrvelleCP", "VVLEnable", Long{1});
        world.Store.Put("OrvelleCP", "VVLSignal", Long{0});
        Give("Tessaly.OpenSession", true);
        Give("Tessaly.SessionStatus", Long{1});
        Give("Tessaly.SessionCallsign", "ABC123");
        Give("Tessaly.ReceiveRadio", "B");
        for (const Long radio : {0, 1}) {
            const std::string ofRadio = "(" + std::to_string(radio) + ")";
            Give("Tessaly.VoiceSoftware" + ofRadio, Long{VatsimVoice});
            Give("Tessaly.VoiceServer" + ofRadio, server.Address());
            Give("Tessaly.VoiceChannel" + ofRadio, "room" + std::to_string(radio));
        }
        panel = std::make_unique<FrmOrvelle>(world.Outside(world.TSRemote, *engine));
        panel->Show();
        world.Tessaly.SessionOpened();
    }

    void Give(const std::string& call, const replay::Value& value) { world.Given.Give(call, {{value}}); }
    Long Parameter(Long index) {
        return replay::InterfaceRecordTable::At(world.Tessaly.Table().Params, panel->Variables().OwnVVL, index).Held;
    }
    void SetPriority(Long room) {
        const Long record = panel->Variables().OwnVVL;
        world.Tessaly.PutParam(record, engine_record::RoomHasPriority + room, 1);
        world.Tessaly.InterfaceParamChanged(record, engine_record::RoomHasPriority + room);
    }
    void LetPriorityEnd() {
        world.Kernel.SetTickCount(clock += 2 * HoldTime);
        panel->VVLPriorityTraffic.Tick();
    }
    bool Hears(double hertz) {
        return ServeUntil(loop, [&] { return IsHeardNow(Ear(Listener), hertz); });
    }
    // From the first moment of one tone to the last one of the other; at the most, as windows see both too long.
    static double Overlap(const pulse::SoundRecording& heard) {
        Moment began = Moment::max();
        Moment ended = Moment::min();
        const Moment end = heard.At(heard.Samples().size() - 1);
        for (Moment at = heard.At(0); at + Window <= end; at += std::chrono::milliseconds(1)) {
            if (heard.ToneLevel(PriorityHertz, at, at + Window) > LeastLevel) began = std::min(began, at + Window / 2);
            if (heard.ToneLevel(UsualHertz, at, at + Window) > LeastLevel) ended = at + Window / 2;
        }
        return MillisecondsBetween(began, ended);
    }

    linux::PollEventLoop loop;
    ListenersDevices devices;
    NoVoiceDialogs dialogs;
    std::unique_ptr<HeardVoiceEngine> engine;
    std::ostringstream calls;
    replay::World world{calls};
    std::unique_ptr<FrmOrvelle> panel;
    Long clock = 0;
    Trial usual{0};
    Trial controller{1};
};

}  // namespace

TEST_F(PriorityTest, PriorityRoomSilencesTheOtherOne) {
    using engine_record::InRoom;
    using engine_record::RoomState;
    ASSERT_TRUE(ServeUntil(loop, [&] { return Parameter(RoomState) == InRoom && Parameter(RoomState + 1) == InRoom; }))
        << calls.str();
    ASSERT_TRUE(usual.Join(0, server.Room("room0"))) << usual.Told();
    ASSERT_TRUE(controller.Join(0, server.Room("room1"))) << controller.Told();
    SetPriority(1);
    const Reference reference(sounds, Microphone(0));
    probe.Play(Mouth(0), pulse::Tone(UsualHertz, 1000), pulse::Playing::AgainAndAgain);
    probe.Play(Mouth(1), pulse::Tone(PriorityHertz, 1000), pulse::Playing::AgainAndAgain);
    for (const std::string& source : {Ear(Listener), std::string(Reference::Ear)}) probe.Record(source);
    usual.Say("mute 0 0");
    std::vector<double> overlaps;
    for (int talk = 0; overlaps.size() < Talks && talk < MostTalks; ++talk) {
        ASSERT_TRUE(Hears(UsualHertz)) << calls.str();
        MachineWasInTime();
        probe.Take(Ear(Listener));
        controller.Say("mute 0 0");
        ASSERT_TRUE(Hears(PriorityHertz));
        ASSERT_TRUE(ServeUntil(loop, [&] { return !IsHeardNow(Ear(Listener), UsualHertz); }));
        const double overlap = Overlap(probe.Take(Ear(Listener)));
        std::cout << "priority room heard, the other one silent after " << overlap << " ms\n";
        if (MachineWasInTime()) overlaps.push_back(overlap);
        controller.Say("mute 0 1");
        ASSERT_TRUE(ServeUntil(loop, [&] { return Parameter(engine_record::RoomCarriesAudio + 1) == 0; }));
        LetPriorityEnd();
    }
    ASSERT_EQ(overlaps.size(), Talks) << "the machine had no time for more";
    EXPECT_LT(MedianOf(overlaps), MostMilliseconds);
}

}  // namespace orvelle::heard
