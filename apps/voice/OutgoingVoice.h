// What is said into the rooms: the microphone's blocks through the squelch and the one encoding for all rooms. Nothing
// is encoded while no room is open. Held by the voice thread's work.
#pragma once

#include "adapters/mumble/VoiceRooms.h"
#include "adapters/speech/Squelch.h"
#include "adapters/speech/VoiceEncoder.h"

namespace orvelle {

class OutgoingVoice {
public:
    explicit OutgoingVoice(mumble::VoiceRooms& voiceRooms) : rooms(voiceRooms) {}

    void SetSquelch(double value) { gate.Set(value); }
    // The next ten milliseconds.
    void Take(const speech::Block& block);

private:
    mumble::VoiceRooms& rooms;
    speech::SquelchGate gate;
    speech::VoiceEncoder encoder;
    bool isPassing = false;  // the last block did
};

}  // namespace orvelle
