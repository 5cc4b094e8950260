// One medium of the framework link: a way from the panel to the network client framework with its session, and to the
// interface records of the set-up. The near end of the link opens one line at a time, says to it what the panel does,
// and hears its events; nobody else does. All events come from the loop, never from inside a call, and none between
// Close and the next Open.
#pragma once

#include <map>
#include <string>

#include "platform/Event.h"
#include "platform/SessionSetting.h"
#include "platform/Types.h"

namespace orvelle {

// Parameters of an interface record by their index; the texts are a table of their own beside the numbers. What is not
// listed is 0 or "".
struct RecordParameters {
    std::map<Long, Long> Numbers;
    std::map<Long, std::string> Texts;
    bool operator==(const RecordParameters&) const = default;
};

struct RecordContent {
    std::string Type;
    std::string Role;
    RecordParameters Parameters;
    bool operator==(const RecordContent&) const = default;
};

class FrameworkLine {
public:
    virtual ~FrameworkLine() = default;

    // Goes to a server: a host name, an address, AutomaticServer or OwnServer. It keeps trying until Close. A line that
    // is open goes over to the new server, which it may be at already. Close ends all records of this panel.
    virtual void Open(const std::string& server) = 0;
    virtual void Close() = 0;

    // Whether the panel may open the session, or a record, for reading.
    virtual bool LetsOpenSession() = 0;
    virtual bool LetsOpenRecord() = 0;

    // The records of this panel. The line keeps what it was told of them and makes it known whenever it can.
    // The id of a new one, which no record of the set-up has; 0 where none may be made.
    virtual Long NewRecordId() = 0;
    // A record as it is now, and what of it was written last; nothing for a new one.
    virtual void SayRecord(Long id, const RecordContent& record, const RecordParameters& written) = 0;
    virtual void SayRecordEnded(Long id) = 0;
    // A write to another computer's record. Its owner takes it or not; a record that was changed is said.
    virtual void SayWrite(Long id, const RecordParameters& written) = 0;

    Event<> Up;
    Event<> Lost;                           // only after Up
    Event<const std::string&> ServerFound;  // a server on the network, by name or address; whether up or not
    // Only while up:
    Event<const SessionSetting&> SessionSaid;        // as it is now; first soon after Up, where there is one
    Event<Long, const RecordContent&> RecordSaid;    // of another computer: a new one, or as it is now
    Event<Long> RecordEnded;                         // of another computer
    Event<Long> RecordAnnounced;                     // something about a record, of whomever, has changed
    Event<Long, const RecordParameters&> WriteSaid;  // another party writes to a record of this panel
    Event<Long> RecordTaken;  // a record of this panel gave way to that of another panel, said before, and has ended
};

}  // namespace orvelle
