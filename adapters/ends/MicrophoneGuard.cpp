#include "adapters/ends/MicrophoneGuard.h"

#include <algorithm>

#include "adapters/ends/EngineEvents.h"
#include "adapters/ends/SimulatorEnd.h"

namespace orvelle::ends {

MicrophoneGuard::MicrophoneGuard(VoiceEngineControl& guardedEngine, SimulatorEnd& simulatorEnd)
    : engine(guardedEngine), simulator(simulatorEnd) {
    PassEvents(engine, *this);
    simulator.InputHandled = [this] { CloseWhatIsNotHeld(); };
}

MicrophoneGuard::~MicrophoneGuard() {
    simulator.InputHandled = nullptr;
    EndEvents(engine);
}

// The panel mutes or opens a talk's rooms at three moments: at the press that starts it, also where the radio isn't
// selected; at a release, which ends it; and in between at any change of the radios, under which a talk goes on. At the
// third it may hold a talk for going on that is over here, or that began with nothing to be seen here, as the engine's
// record could not be opened; the latter is put down to what is held now.
void MicrophoneGuard::RoomMute(Long room, bool mute) {
    engine.RoomMute(room, mute);
    if (room < 0 || room >= Rooms) return;
    Talk& talk = talks[static_cast<std::size_t>(room)];
    talk.IsOpen = !mute;
    const std::optional<InputChange>& told = simulator.Telling();
    if (told && told->Move == InputMove::Down) {
        talk.StartedBy = MadeOf(*told);
    } else if (mute) {
        if (told) talk.StartedBy.reset();
    } else {
        if (!talk.StartedBy) talk.StartedBy = simulator.HeldAsTold().InOrder();
        if (!IsHeld(talk)) Close(room);
    }
}

void MicrophoneGuard::CloseAll() {
    for (Long room = 0; room < Rooms; ++room) Close(room);
}

void MicrophoneGuard::CloseWhatIsNotHeld() {
    for (Long room = 0; room < Rooms; ++room) {
        const Talk& talk = talks[static_cast<std::size_t>(room)];
        if (talk.StartedBy && !IsHeld(talk)) Close(room);
    }
}

// What is pressed later, be it the same key, doesn't bring the talk back.
void MicrophoneGuard::Close(Long room) {
    Talk& talk = talks[static_cast<std::size_t>(room)];
    talk.StartedBy.emplace();
    if (!talk.IsOpen) return;
    talk.IsOpen = false;
    engine.RoomMute(room, true);
}

bool MicrophoneGuard::IsHeld(const Talk& talk) const {
    return talk.StartedBy && std::ranges::any_of(*talk.StartedBy, [this](const HeldInput& input) {
               return simulator.HeldAsTold().IsHeld(input);
           });
}

// A key starts a talk together with the keys that are held already, a button by itself.
std::vector<HeldInput> MicrophoneGuard::MadeOf(const InputChange& press) const {
    if (press.Input.Kind == InputKind::Button) return {press.Input};
    std::vector<HeldInput> keys = simulator.HeldAsTold().InOrder();
    std::erase_if(keys, [](const HeldInput& input) { return input.Kind != InputKind::Key; });
    return keys;
}

}  // namespace orvelle::ends
