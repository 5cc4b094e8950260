#include "adapters/mumble/RetryWaits.h"

#include <algorithm>
#include <array>
#include <utility>

namespace orvelle::mumble {

namespace {

constexpr std::chrono::seconds Standing{10};
// Milliseconds, from the least to the most.
constexpr std::pair<Long, Long> WhileRefused{500, 900};
constexpr std::array<std::pair<Long, Long>, 4> Waits{{{100, 400}, {1800, 2200}, {8000, 12000}, {50000, 70000}}};
constexpr std::size_t AfterNoConnection = 1;  // the first is for what stood until now
constexpr std::size_t LongestUnreached = 2;   // nobody bans who did not reach the server

bool IsUnreached(ConnectionEnd why) { return why == ConnectionEnd::NoSuchHost || why == ConnectionEnd::Unreachable; }

}  // namespace

Long RetryWaits::Next(ConnectionEnd why) {
    if (why == ConnectionEnd::Refused) {
        Restart();
        return Spread(WhileRefused.first, WhileRefused.second);
    }
    const bool wasJoined = joinedAt != Clock::time_point();
    if (wasJoined && Clock::now() - joinedAt >= Standing) Restart();
    joinedAt = {};
    if (failures == 0 && !wasJoined) failures = AfterNoConnection;
    const auto& [least, most] = Waits.at(std::min(failures, IsUnreached(why) ? LongestUnreached : Waits.size() - 1));
    ++failures;
    return Spread(least, most);
}

void RetryWaits::NoteJoined() { joinedAt = Clock::now(); }

}  // namespace orvelle::mumble
