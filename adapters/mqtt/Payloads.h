// What the programs of one set-up say to each other: for each message its content, its reader and its writer.
// docs/protocol.md tells it all; every rule on what is taken stands in the readers, and nowhere else. A reader gives
// nothing for a payload that breaks a rule; it never throws. What a writer gives, the reader takes: texts that are no
// UTF-8 go out as if they were Latin-1, and what is beyond the bounds of a message is cut. A text that was read is
// UTF-8 and may hold any character, U+0000, too. Called by the lines, the far sides and whoever watches the set-up.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/FrameworkLine.h"
#include "platform/SessionSetting.h"
#include "platform/SimulatorInput.h"
#include "platform/Types.h"

namespace orvelle::mqtt {

// A program that is there. Its end is an empty payload, which is no presence.
struct PresenceSetting {
    std::string Name;
    std::string Address;
    std::string Desktop;
    bool OffersSimulator = false;  // the simulator's program alone offers links; a panel's offers mean nothing
    bool OffersFramework = false;
    Long Beat = 1;  // of the program's run, by CountAfter
    bool operator==(const PresenceSetting&) const = default;
};

// All that is held.
struct InputMessage {
    Long Number = 1;  // of the program's run, by CountAfter
    SimulatorInput Held;
    bool operator==(const InputMessage&) const = default;
};

// A panel asks for a sound.
struct PlayRequest {
    int To = 0;  // the number of the identity
    std::string Sound;
    bool operator==(const PlayRequest&) const = default;
};

// A write to a record of another computer. 0 and "" are listed here, since they are written.
struct WriteRequest {
    int To = 0;
    Long Record = 0;  // as its owner numbers it, 1 to LastRecord of Topics.h
    RecordParameters Written;
};

// The beat or number that follows: from 1 to the greatest number, and then from 1 again.
Long CountAfter(Long count);

std::optional<PresenceSetting> ReadPresence(std::string_view payload);
std::string WritePresence(const PresenceSetting& presence);

std::optional<InputMessage> ReadInput(std::string_view payload);
std::string WriteInput(const InputMessage& message);

std::optional<PlayRequest> ReadPlay(std::string_view payload);
std::string WritePlay(const PlayRequest& request);

// An empty payload is the setting with Handle 0, no session, both ways.
std::optional<SessionSetting> ReadSession(std::string_view payload);
std::string WriteSession(const SessionSetting& session);

// A record, which lists nothing that is 0 or "". Its end is an empty payload, which is no record.
std::optional<RecordContent> ReadRecord(std::string_view payload);
std::string WriteRecord(const RecordContent& record);

std::optional<WriteRequest> ReadWrite(std::string_view payload);
std::string WriteWrite(const WriteRequest& request);

}  // namespace orvelle::mqtt
