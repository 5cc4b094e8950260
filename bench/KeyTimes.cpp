// orvelle-key-times FROM TO COUNT PACE HOLD: strikes the key A on the display FROM as its user does, COUNT times, each
// time PACE milliseconds after the time before and for HOLD milliseconds, while some way brings its strokes to the
// display TO; and prints what became of it, in microseconds from just before a press is sent until it is told there:
//
//   median p95 p99 greatest lost extra stuck
//
// Waits until the way is there, half a minute at most. bench/key-times runs it.
#include <sys/prctl.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <iostream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "apps/UserStrokes.h"
#include "bench/PressWatch.h"

namespace orvelle {

namespace {

using std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;
using Moments = PressWatch::Moments;

constexpr int KeyA = 38;  // by the X server's numbers
constexpr milliseconds Probe{100};
constexpr int MostProbes = 300;
constexpr milliseconds Silence{500};  // after which nothing more comes

// Until nothing has come for a while.
void AwaitSilence(const PressWatch& watch) {
    for (std::size_t seen = SIZE_MAX; seen != watch.Presses().size() + watch.Releases().size();) {
        seen = watch.Presses().size() + watch.Releases().size();
        std::this_thread::sleep_for(Silence);
    }
}

void AwaitWay(UserStrokes& user, PressWatch& watch) {
    for (int probes = 0; watch.Presses().empty(); ++probes) {
        if (probes == MostProbes) throw std::runtime_error("no key comes through");
        user.Press(KeyA);
        std::this_thread::sleep_for(Probe / 2);
        user.Release(KeyA);
        std::this_thread::sleep_for(Probe / 2);
    }
    AwaitSilence(watch);
    watch.Begin();
}

Moments Strike(UserStrokes& user, std::size_t count, milliseconds pace, milliseconds hold) {
    // The slack of a usual timer would blur the pace.
    prctl(PR_SET_TIMERSLACK, 1);
    Moments sent;
    sent.reserve(count);
    for (auto next = Clock::now() + pace; sent.size() < count; next += pace) {
        std::this_thread::sleep_until(next);
        sent.push_back(Clock::now());
        user.Press(KeyA);
        std::this_thread::sleep_until(next + hold);
        user.Release(KeyA);
    }
    return sent;
}

struct Times {
    std::vector<double> Microseconds;  // ascending
    std::size_t Lost = 0;
    std::size_t Extra = 0;
};

// A press belongs to the last one that was sent before it came; where all came, each to its own, however late.
Times Compare(const Moments& sent, const Moments& came) {
    Times times;
    const bool areAllThere = sent.size() == came.size();
    std::size_t next = 0;
    for (std::size_t press = 0; press < sent.size(); ++press) {
        const bool isLast = press + 1 == sent.size();
        if (!areAllThere)
            for (; next < came.size() && came[next] < sent[press]; ++next) ++times.Extra;
        if (next == came.size() || (!areAllThere && !isLast && came[next] >= sent[press + 1])) {
            ++times.Lost;
            continue;
        }
        const std::chrono::duration<double, std::micro> taken = came[next++] - sent[press];
        times.Microseconds.push_back(taken.count());
    }
    times.Extra += came.size() - next;
    std::ranges::sort(times.Microseconds);
    return times;
}

void Print(const Times& times, int stuck) {
    const auto& all = times.Microseconds;
    if (all.empty()) throw std::runtime_error("no press came");
    const auto at = [&](double part) {
        return all[static_cast<std::size_t>(part * static_cast<double>(all.size() - 1))];
    };
    std::printf("%.1f %.1f %.1f %.1f %zu %zu %d\n", at(0.5), at(0.95), at(0.99), all.back(), times.Lost, times.Extra,
                stuck);
}

void Measure(const std::string& from, const std::string& to, std::size_t count, milliseconds pace, milliseconds hold) {
    UserStrokes user(from);
    PressWatch watch(to);
    AwaitWay(user, watch);
    const Moments sent = Strike(user, count, pace, hold);
    AwaitSilence(watch);
    Print(Compare(sent, watch.Presses()), watch.KeysDown());
}

}  // namespace

}  // namespace orvelle

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    try {
        if (arguments.size() != 5) throw std::runtime_error("usage: orvelle-key-times FROM TO COUNT PACE HOLD");
        orvelle::Measure(arguments[0], arguments[1], std::stoul(arguments[2]),
                         std::chrono::milliseconds(std::stoi(arguments[3])),
                         std::chrono::milliseconds(std::stoi(arguments[4])));
    } catch (const std::exception& error) {
        std::cerr << "orvelle-key-times: " << error.what() << "\n";
        return 1;
    }
}
