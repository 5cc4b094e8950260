// What the voice thread tells the panel's of a room: of the attempt to join it that the panel began last when it
// happened, by that attempt's number.
#pragma once

#include <string>

#include "platform/Types.h"

namespace orvelle {

enum class RoomHappening { Joined, Failed, Kicked, Left, AudioStarted, AudioStopped, StatusChanged };

struct RoomNews {
    Long Room = 0;
    unsigned long Attempt = 0;
    RoomHappening What = RoomHappening::Left;
    std::string Status;  // a sentence, where it changed
};

}  // namespace orvelle
