// Which programs of the set-up are there, by what they say of themselves: from a program's first beat until it says
// goodbye or is silent for three seconds. Kept by each program for the time of a connection.
#pragma once

#include <compare>
#include <map>
#include <optional>

#include "adapters/mqtt/Payloads.h"
#include "adapters/mqtt/Topics.h"
#include "platform/Event.h"
#include "platform/EventLoop.h"

namespace orvelle::mqtt {

constexpr Long LeaseMilliseconds = 3000;  // that a beat is worth

struct ProgramAt {
    int Identity;
    Program Kind;
    auto operator<=>(const ProgramAt&) const = default;
};

class Presences {
public:
    explicit Presences(EventLoop& eventLoop) : loop(eventLoop) {}

    // A beat, or nothing for a goodbye.
    void Hear(ProgramAt program, const std::optional<PresenceSetting>& said);
    // Nobody is known any more; tells nothing.
    void Clear() { there.clear(); }

    // What it said last; null while it is not there.
    const PresenceSetting* Find(ProgramAt program) const;
    bool IsThere(ProgramAt program) const { return Find(program) != nullptr; }
    // The simulator's program that serves a link: of those that offer it, the one of the lowest identity. 0 for none.
    int SimulatorOffering(bool PresenceSetting::*offer) const;

    // Somebody came or went, or says something else of itself than its beats.
    Event<> Changed;

private:
    struct Present {
        PresenceSetting Said;
        Ticket End;
    };

    void Forget(ProgramAt program);

    EventLoop& loop;
    std::map<ProgramAt, Present> there;
};

}  // namespace orvelle::mqtt
