// Loaded before a program: the time of day jumps by a day, forth and back, at each look. The clocks that only go on are
// left alone, and so are the programs that this one starts.
#include <dlfcn.h>
#include <sys/time.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <ctime>

namespace {

constexpr time_t Day = 86400;

time_t Jump() {
    static std::atomic<unsigned> looks = 0;
    return ++looks % 2 != 0 ? Day : -Day;
}

timespec TimeOfDay() {
    using Clock = int (*)(clockid_t, timespec*);
    static const auto real = reinterpret_cast<Clock>(dlsym(RTLD_NEXT, "clock_gettime"));
    timespec now{};
    real(CLOCK_REALTIME, &now);
    now.tv_sec += Jump();
    return now;
}

[[gnu::constructor]] void LeaveOthersAlone() { unsetenv("LD_PRELOAD"); }

}  // namespace

extern "C" {

int clock_gettime(clockid_t clock, timespec* time) {
    using Clock = int (*)(clockid_t, timespec*);
    static const auto real = reinterpret_cast<Clock>(dlsym(RTLD_NEXT, "clock_gettime"));
    if (clock != CLOCK_REALTIME) return real(clock, time);
    *time = TimeOfDay();
    return 0;
}

int gettimeofday(timeval* time, void*) {
    const timespec now = TimeOfDay();
    *time = {now.tv_sec, now.tv_nsec / 1000};
    return 0;
}

time_t time(time_t* result) {
    const time_t now = TimeOfDay().tv_sec;
    if (result != nullptr) *result = now;
    return now;
}
}
