#include "adapters/mumble/RetryWaits.h"

#include <algorithm>
#include <array>
#include <utility>

namespace orvelle::mumble {

namespace {

constexpr std::chrono::seconds Standing{10};
// Milliseconds, from the least to the most.
constexpr std::pair<Long, Long> AtOnce{100, 400};  // after a connection that stood
constexpr std::pair<Long, Long> WhileRefused{500, 900};
constexpr std::array<std::pair<Long, Long>, 3> Waits{{{1800, 2200}, {8000, 12000}, {50000, 70000}}};
// Nobody bans who did not reach the server.
constexpr std::size_t LongestUnreached = 1;

bool IsUnreached(ConnectionEnd why) { return why == ConnectionEnd::NoSuchHost || why == ConnectionEnd::Unreachable; }

}  // namespace

Long RetryWaits::Next(ConnectionEnd why) {
    if (why == ConnectionEnd::Refused) {
        Restart();
        return Spread(WhileRefused.first, WhileRefused.second);
    }
    const bool stood = joinedAt != Clock::time_point() && Clock::now() - joinedAt >= Standing;
    const bool wasJoined = std::exchange(joinedAt, {}) != Clock::time_point();
    if (stood) Restart();
    if (wasJoined && failures == 0) {
        ++failures;
        return Spread(AtOnce.first, AtOnce.second);
    }
    const std::size_t longest = IsUnreached(why) ? LongestUnreached : Waits.size() - 1;
    const auto& [least, most] = Waits.at(std::min(failures == 0 ? 0 : failures - 1, longest));
    ++failures;
    return Spread(least, most);
}

void RetryWaits::NoteJoined() { joinedAt = Clock::now(); }

}  // namespace orvelle::mumble
