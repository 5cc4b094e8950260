// The numbered parameters of the voice engine's record, which other parties read and write as well. A number that
// stands for three rooms is that of room 0; the rooms follow it.
#pragma once

#include <array>

#include "platform/RuntimeError.h"
#include "platform/Types.h"

namespace orvelle {

constexpr Long Rooms = 3;  // 0 COM1, 1 COM2, 2 the private channel
constexpr Long PrivateRoom = 2;

constexpr Long Headset = 0;
constexpr Long Speakers = 1;

constexpr Long EngineRuns = 2;
constexpr Long SpeakersHaveDevice = 3;
constexpr Long AllRoomsOnSpeakers = 4;
constexpr Long AudioRuns = 5;
constexpr Long Transmitting = 6;
constexpr Long RoomState = 7;
constexpr Long RoomOnSpeakers = 10;
constexpr Long RoomNotReceived = 13;
constexpr Long RoomNotTransmitting = 16;
constexpr Long RoomCarriesAudio = 19;
constexpr Long RoomTransmits = 22;
constexpr Long RoomHasPriority = 25;

using RoomFlags = std::array<bool, Rooms>;

// A room that there is not is run-time error 9.
inline bool RoomFlag(const RoomFlags& flags, Long room) {
    if (room < 0 || room >= Rooms) throw RuntimeError(RuntimeError::SubscriptOutOfRange);
    return flags[static_cast<std::size_t>(room)];
}

// Text parameters
constexpr Long RoomAddressText = 7;
constexpr Long RoomStatusText = 10;

// Values of RoomState
constexpr Long NotInRoom = 0;
constexpr Long JoiningRoom = 1;
constexpr Long InRoom = 2;
constexpr Long RoomJoinFailed = 3;
constexpr Long KickedFromRoom = 4;

}  // namespace orvelle
