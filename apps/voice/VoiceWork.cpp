#include "apps/voice/VoiceWork.h"

#include <algorithm>
#include <utility>

namespace orvelle {

namespace {

// Milliseconds:
constexpr Long OpeningPatience = 1000;  // that a device has to begin to work
constexpr Long ClosingPatience = 1000;  // that the devices stay open, as the next room may be on its way

}  // namespace

VoiceWork::VoiceWork(EventLoop& eventLoop, const std::filesystem::path& folder)
    : loop(eventLoop), rooms(eventLoop, folder), streams(eventLoop), incoming(eventLoop) {
    rooms.Joined = [this](Long room) { TakeIn(room); };
    rooms.Failed = [this](Long room) { TakeOut(room, RoomHappening::Failed); };
    rooms.Kicked = [this](Long room) { TakeOut(room, RoomHappening::Kicked); };
    rooms.Left = [this](Long room) { TakeOut(room, RoomHappening::Left); };
    rooms.StatusChanged = [this](Long room, const std::string& status) {
        Tell(room, RoomHappening::StatusChanged, status);
    };
    rooms.Heard = [this](Long room, const speech::HeardVoice& packet) {
        incoming.Hear(room, packet);
        streams.RouseOutputs();
    };
    rooms.SpeakerGone = [this](Long room, std::uint32_t speaker) { incoming.Forget(room, speaker); };
    rooms.PasswordWanted = [this](const std::string& server, PasswordQuestion question) {
        PasswordWanted(server, question);
    };
    incoming.AudioStarted = [this](Long room) { Tell(room, RoomHappening::AudioStarted); };
    incoming.AudioStopped = [this](Long room) { Tell(room, RoomHappening::AudioStopped); };
    streams.Recorded = [this](const speech::Block& block) { outgoing.Take(block); };
    streams.Wanted = [this](Long output, speech::Block& block) { incoming.Take(output, block); };
    streams.Changed = [this] { FollowDevices(); };
}

void VoiceWork::Join(Long room, unsigned long attempt, const std::string& clientName,
                     const mumble::RoomAddress& address) {
    At(room).Attempt = attempt;
    At(room).Address = address;
    rooms.Join(room, clientName, address);
}

void VoiceWork::Tell(Long room, RoomHappening what, const std::string& status) {
    RoomChanged({room, At(room).Attempt, what, status});
}

void VoiceWork::TakeIn(Long room) {
    At(room).IsIn = true;
    incoming.Join(room, At(room).Address);
    FollowRooms();
    Tell(room, RoomHappening::Joined);
}

void VoiceWork::TakeOut(Long room, RoomHappening why) {
    At(room).IsIn = false;
    incoming.Leave(room);
    FollowRooms();
    Tell(room, why);
}

void VoiceWork::FollowRooms() {
    if (std::ranges::any_of(places, &Place::IsIn)) {
        closing.End();
        if (!areDevicesOpen) OpenDevices();
    } else if (areDevicesOpen) {
        closing = loop.After(ClosingPatience, [this] { CloseDevices(); });
    }
}

void VoiceWork::OpenDevices() {
    areDevicesOpen = areDevicesAwaited = true;
    opening = loop.After(OpeningPatience, [this] {
        areDevicesAwaited = false;
        FollowDevices();
    });
    streams.OpenMicrophone();
    streams.OpenOutputs();
}

void VoiceWork::CloseDevices() {
    areDevicesOpen = false;
    streams.CloseMicrophone();
    streams.CloseOutputs();
    FollowDevices();
}

// A device of which nothing is wanted does not fail.
void VoiceWork::FollowDevices() {
    const auto fails = [this](bool works) { return areDevicesOpen && !works; };
    const DeviceNews now{fails(streams.MicrophoneWorks()),
                         {fails(streams.OutputWorks(Headset)), fails(streams.OutputWorks(Speakers))}};
    if (now == DeviceNews{}) {
        areDevicesAwaited = false;
        opening.End();
    }
    if (areDevicesAwaited || std::exchange(told, now) == now) return;
    DevicesChanged(now);
}

}  // namespace orvelle
