#include "apps/voice/OutgoingVoice.h"

#include <utility>

namespace orvelle {

void OutgoingVoice::Take(const speech::Block& block) {
    if (!rooms.IsSpeechWanted()) {
        isPassing = false;
        return gate.Close();
    }
    const bool passes = gate.Passes(block);
    const bool didPass = std::exchange(isPassing, passes);
    if (!passes && !didPass) return;
    if (!didPass) encoder.Restart();
    using Squelched = mumble::VoiceRooms::Squelched;
    if (const auto packet = encoder.Encode(block); !packet.empty())
        rooms.Send(packet, passes ? Squelched::No : Squelched::Yes);
}

}  // namespace orvelle
