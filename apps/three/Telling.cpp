#include "apps/three/Telling.h"

#include <cstdio>

#include "apps/Waiting.h"

namespace orvelle {

namespace {

long long MillisecondsOf(std::chrono::steady_clock::duration time) {
    return std::chrono::duration_cast<std::chrono::milliseconds>(time).count();
}

}  // namespace

void Telling::Happens(const std::string& what) {
    cause = Clock::now();
    std::printf("%7.3f s  %s\n", Seconds(), what.c_str());
    std::fflush(stdout);
}

bool Telling::Comes(const std::string& what, const std::function<bool()>& isSo) {
    return Comes([&] { return what; }, isSo);
}

bool Telling::Comes(const Text& what, const std::function<bool()>& isSo) {
    const bool hasCome = WaitUntil([&] { return isStopped || isSo(); });
    if (isStopped) return false;
    std::printf("%7.3f s  %6lld ms later%s: %s\n", Seconds(), MillisecondsOf(Clock::now() - cause),
                hasCome ? "" : " this is NOT SO", what().c_str());
    std::fflush(stdout);
    return hasCome;
}

double Telling::Seconds() const { return static_cast<double>(MillisecondsOf(Clock::now() - start)) / 1000; }

}  // namespace orvelle
