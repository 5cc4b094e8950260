// Tries whether a computer belongs to a set-up: connects to its broker as the computer that the code names, without
// being there as any program is, and keeps the set-up in setup.json if the broker takes the key. One attempt at a time,
// never waited for; it ends within JoinMilliseconds. Called by whoever lets the user join, or go to another host.
#pragma once

#include <filesystem>
#include <string>

#include "adapters/mqtt/BrokerTroubles.h"
#include "adapters/mqtt/SetUpFile.h"

namespace orvelle::mqtt {

constexpr Long JoinMilliseconds = 8000;

enum class JoinOutcome {
    Joined,
    InAnotherSetUp,  // which has to be left first; nothing was tried
    HostUnknown,
    Unreachable,
    Refused,    // the broker doesn't take the key
    NotASetUp,  // what answers isn't encrypted as a set-up's broker, or doesn't speak its protocol
    NotKept,    // the file can't be written
};

class Joining {
public:
    Joining(EventLoop& eventLoop, std::filesystem::path setUpFile);

    // A computer that is in a set-up already can try another host for it: the same number with the same key.
    void Try(const SetUpSetting& setUp);
    void Cancel();
    bool IsUnderWay() const { return isUnderWay; }

    // From the loop, with a sentence for the user.
    Event<JoinOutcome, const std::string&> Ended;

private:
    void Keep();
    void End(JoinOutcome outcome, const std::string& sentence);
    void EndFor(BrokerTrouble trouble);
    std::string Place() const;

    EventLoop& loop;
    const std::filesystem::path file;
    SetUpSetting wanted;
    KeyFrom origin = KeyFrom::TypedCode;
    bool isUnderWay = false;
    BrokerConnection connection;
    Ticket bound;
};

}  // namespace orvelle::mqtt
