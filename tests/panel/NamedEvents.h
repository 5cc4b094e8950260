// Events by name, for the tests that each is wired to a handler as soon as the panel is built. The few that need none
// stand in a table, each with its reason.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "platform/Event.h"

namespace orvelle {

// The names of events that nobody needs to handle, with the reason.
using Exceptions = std::map<std::string, const char*>;

struct NamedEvent {
    std::string Name;
    bool IsHandled;
    std::size_t Size;
};

template <typename... Arguments>
NamedEvent Named(const std::string& name, const Event<Arguments...>& event) {
    return {name, event.IsHandled(), sizeof event};
}

inline void ExpectWired(const std::vector<NamedEvent>& events, const Exceptions& exceptions) {
    std::size_t met = 0;
    for (const NamedEvent& event : events) {
        const auto exception = exceptions.find(event.Name);
        if (exception != exceptions.end()) ++met;
        EXPECT_EQ(event.IsHandled, exception == exceptions.end())
            << event.Name
            << (event.IsHandled ? " is handled, and the table says that it need not be"
                                : " is wired to nothing in panel/Wiring.cpp");
    }
    EXPECT_EQ(met, exceptions.size()) << "the table names an event that is not there";
}

inline std::vector<NamedEvent> Together(const std::vector<std::vector<NamedEvent>>& parts) {
    std::vector<NamedEvent> all;
    for (const std::vector<NamedEvent>& part : parts) all.insert(all.end(), part.begin(), part.end());
    return all;
}

}  // namespace orvelle
