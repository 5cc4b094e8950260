// Whatever the outside tells finds its handler: every event of every outside control.
#include <gtest/gtest.h>

#include <sstream>

#include "panel/FrmOrvelle.h"
#include "replay/World.h"
#include "tests/panel/NamedEvents.h"

namespace orvelle {
namespace {

const Exceptions UnhandledOutside{
    {"VolumeControlHP.InputOpened", "the speakers' mixer is asked for its output alone"},
    {"VolumeControlHP.InputClosed", "the same"},
    {"VolumeControlHP.MicVolumeChanged", "the same"},
};

// An interface is its table of functions and its events, nothing else: its size tells of an event that is not listed.
template <typename Interface>
void Add(std::vector<NamedEvent>& all, const Interface&, const std::vector<NamedEvent>& events) {
    std::size_t size = sizeof(void*);
    for (const NamedEvent& event : events) {
        size += event.Size;
        all.push_back(event);
    }
    EXPECT_EQ(sizeof(Interface), size) << "an event beside " << events.front().Name << " is not listed in this test";
}

std::vector<NamedEvent> EventsOf(const VelmarcControl& velmarc) {
    std::vector<NamedEvent> events;
    Add(events, velmarc,
        {Named("Velmarc.Connected", velmarc.Connected), Named("Velmarc.Disconnected", velmarc.Disconnected),
         Named("Velmarc.ServerFound", velmarc.ServerFound), Named("Velmarc.FSKeyDown", velmarc.FSKeyDown),
         Named("Velmarc.FSKeyUp", velmarc.FSKeyUp), Named("Velmarc.FSJoyDown", velmarc.FSJoyDown),
         Named("Velmarc.FSJoyUp", velmarc.FSJoyUp)});
    return events;
}

std::vector<NamedEvent> EventsOf(const TessalyControl& tessaly) {
    const FrameworkLink& link = tessaly;
    const NetworkSession& session = tessaly;
    const InterfaceRecords& records = tessaly;
    EXPECT_EQ(sizeof tessaly, sizeof link + sizeof session + sizeof records);
    std::vector<NamedEvent> events;
    Add(events, link,
        {Named("Tessaly.Connected", link.Connected), Named("Tessaly.Disconnected", link.Disconnected),
         Named("Tessaly.ServerFound", link.ServerFound)});
    Add(events, session,
        {Named("Tessaly.SessionOpened", session.SessionOpened), Named("Tessaly.SessionClosed", session.SessionClosed),
         Named("Tessaly.SessionStatusChanged", session.SessionStatusChanged),
         Named("Tessaly.RadioChanged", session.RadioChanged),
         Named("Tessaly.RadioVoiceChanged", session.RadioVoiceChanged),
         Named("Tessaly.CallsignChanged", session.CallsignChanged)});
    Add(events, records,
        {Named("Tessaly.InterfaceAppeared", records.InterfaceAppeared),
         Named("Tessaly.InterfaceChanged", records.InterfaceChanged),
         Named("Tessaly.InterfaceRemoved", records.InterfaceRemoved),
         Named("Tessaly.InterfaceParamChanged", records.InterfaceParamChanged)});
    return events;
}

std::vector<NamedEvent> EventsOf(const VoiceEngineControl& engine) {
    std::vector<NamedEvent> events;
    Add(events, engine,
        {Named("VVL_Started", engine.VVL_Started), Named("VVL_Stopped", engine.VVL_Stopped),
         Named("VVL_AudioStarted", engine.VVL_AudioStarted), Named("VVL_AudioStopped", engine.VVL_AudioStopped),
         Named("VVL_RoomJoinSucceed", engine.VVL_RoomJoinSucceed),
         Named("VVL_RoomJoinFailed", engine.VVL_RoomJoinFailed), Named("VVL_RoomKicked", engine.VVL_RoomKicked),
         Named("VVL_RoomLeft", engine.VVL_RoomLeft), Named("VVL_RoomAudioStarted", engine.VVL_RoomAudioStarted),
         Named("VVL_RoomAudioStopped", engine.VVL_RoomAudioStopped),
         Named("VVL_RoomStatusChanged", engine.VVL_RoomStatusChanged)});
    return events;
}

std::vector<NamedEvent> EventsOf(const MixerControl& mixer, const std::string& name) {
    std::vector<NamedEvent> events;
    Add(events, mixer,
        {Named(name + ".InputOpened", mixer.InputOpened), Named(name + ".InputClosed", mixer.InputClosed),
         Named(name + ".MicVolumeChanged", mixer.MicVolumeChanged), Named(name + ".OutputOpened", mixer.OutputOpened),
         Named(name + ".OutputClosed", mixer.OutputClosed),
         Named(name + ".MasterVolumeChanged", mixer.MasterVolumeChanged),
         Named(name + ".WaveVolumeChanged", mixer.WaveVolumeChanged)});
    return events;
}

TEST(OutsideWiringTest, EveryEventIsHandledOnceThePanelIsBuilt) {
    std::ostringstream out;
    replay::World world{out};
    const FrmOrvelle panel{world.Outside()};
    const Platform outside = world.Outside();
    ExpectWired(Together({EventsOf(outside.Velmarc), EventsOf(outside.Tessaly), EventsOf(outside.VVL),
                          EventsOf(outside.VolumeControl, "VolumeControl"),
                          EventsOf(outside.VolumeControlHP, "VolumeControlHP")}),
                UnhandledOutside);
}

}  // namespace
}  // namespace orvelle
