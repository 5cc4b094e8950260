// This computer's place in a set-up of several computers, for whoever lets the user join one, leave it or go to another
// host: the window for it and the commands. One thing is tried at a time, and is never waited for. Observers are told
// from the loop. Texts are UTF-8; a place is the host of a set-up's broker, with its port where that isn't the usual
// one ("simpc", "simpc:8884").
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/Ticket.h"
#include "platform/Types.h"

namespace orvelle {

struct JoinedSetUp {
    std::string Name;
    std::string Place;
    Long Number = 0;  // of this computer in it, 1 to 99
    bool operator==(const JoinedSetUp&) const = default;
};

struct SeenSetUp {
    std::string Name;
    std::string Place;
    bool operator==(const SeenSetUp&) const = default;
};

enum class JoinState { Idle, Trying, Succeeded, Failed };
enum class Looking { No, Yes };

class JoinSide {
public:
    virtual ~JoinSide() = default;

    // Nothing where this computer is in none.
    virtual std::optional<JoinedSetUp> Joined() const = 0;
    // Set-ups on the network, while they are looked for.
    virtual void Look(Looking looking) = 0;
    virtual std::vector<SeenSetUp> Seen() const = 0;

    // Whether a text is a code as a set-up gives them, and not mistyped.
    virtual bool IsCode(const std::string& text) const = 0;
    // At no place, "", the one set-up that is seen is joined.
    virtual void Join(const std::string& code, const std::string& place) = 0;
    virtual void MoveTo(const std::string& place) = 0;
    virtual void Leave() = 0;
    virtual void Cancel() = 0;

    // How it goes with what was asked for last, and a sentence on it for the user, "" for none.
    virtual JoinState State() const = 0;
    virtual std::string Sentence() const = 0;

    virtual Ticket Observe(std::function<void()> observer) = 0;
};

}  // namespace orvelle
