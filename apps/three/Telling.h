// Tells a story in the terminal while it happens: what is done, and what comes of it. Each line bears the time since
// the start, and what comes of a thing the time since that, too.
#pragma once

#include <chrono>
#include <functional>
#include <string>

namespace orvelle {

class Telling {
public:
    using Text = std::function<std::string()>;

    // What happens from now on is counted from here.
    void Happens(const std::string& what);
    // Serves the program's loop until it is so, and tells. What does not come in the longest wait is told as that, and
    // so is the text of a line that can only be said when it is so. False then, and at once when the story was stopped.
    bool Comes(const std::string& what, const std::function<bool()>& isSo);
    bool Comes(const Text& what, const std::function<bool()>& isSo);

    // The user wants it to end.
    void Stop() { isStopped = true; }
    bool IsStopped() const { return isStopped; }
    double Seconds() const;  // since the start

private:
    using Clock = std::chrono::steady_clock;

    const Clock::time_point start = Clock::now();
    Clock::time_point cause = start;
    bool isStopped = false;
};

}  // namespace orvelle
