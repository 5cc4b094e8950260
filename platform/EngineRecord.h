// The parameters of the interface record of role "VVL", by which the panel that runs the voice engine and other parties
// tell each other what the engine does and shall do. All sides read and write them; what was never written is 0 or "".
// A name that begins with "Room" is the number for room 0; those of rooms 1 and 2 follow it.
#pragma once

#include "platform/Types.h"

namespace orvelle::engine_record {

// Whole numbers. Where nothing else is said 1 is yes and 0 no.
enum Parameter : Long {
    FirstConstant = 0,
    SecondConstant = 1,
    EngineRuns = 2,
    SpeakersHaveDevice = 3,
    AllRoomsOnSpeakers = 4,
    AudioRuns = 5,
    Transmitting = 6,  // to any room
    RoomState = 7,     // a State
    RoomOnSpeakers = 10,
    RoomNotReceived = 13,
    RoomNotTransmitting = 16,
    RoomCarriesAudio = 19,
    RoomTransmits = 22,
    RoomHasPriority = 25,
};

// What the two constant parameters hold from the record's making on.
constexpr Long FirstConstantValue = 3;
constexpr Long SecondConstantValue = 7;

// Texts, a table of their own beside the numbers.
enum Text : Long {
    RoomAddressText = 7,
    RoomStatusText = 10,
};

// Another party asks for a leave by writing NotInRoom and for a join by JoiningRoom; the other states only tell.
enum State : Long {
    NotInRoom = 0,
    JoiningRoom = 1,
    InRoom = 2,
    RoomJoinFailed = 3,
    KickedFromRoom = 4,
};

}  // namespace orvelle::engine_record
