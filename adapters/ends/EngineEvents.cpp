#include "adapters/ends/EngineEvents.h"

namespace orvelle::ends {

namespace {

constexpr Event<> VoiceEngineControl::*OfEngine[] = {&VoiceEngineControl::VVL_Started, &VoiceEngineControl::VVL_Stopped,
                                                     &VoiceEngineControl::VVL_AudioStarted,
                                                     &VoiceEngineControl::VVL_AudioStopped};
constexpr Event<Long> VoiceEngineControl::*OfRooms[] = {
    &VoiceEngineControl::VVL_RoomJoinSucceed,  &VoiceEngineControl::VVL_RoomJoinFailed,
    &VoiceEngineControl::VVL_RoomKicked,       &VoiceEngineControl::VVL_RoomLeft,
    &VoiceEngineControl::VVL_RoomAudioStarted, &VoiceEngineControl::VVL_RoomAudioStopped,
    &VoiceEngineControl::VVL_RoomStatusChanged};

}  // namespace

void PassEvents(VoiceEngineControl& from, VoiceEngineControl& to) {
    for (const auto event : OfEngine) from.*event = [&to, event] { (to.*event)(); };
    for (const auto event : OfRooms) from.*event = [&to, event](Long room) { (to.*event)(room); };
}

void EndEvents(VoiceEngineControl& from) {
    for (const auto event : OfEngine) from.*event = nullptr;
    for (const auto event : OfRooms) from.*event = nullptr;
}

}  // namespace orvelle::ends
