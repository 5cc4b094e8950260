// A program that a test has started on a host and that tells events as lines, each after its moment. All times are
// microseconds of the monotonic clock.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tests/hosts/Host.h"
#include "tests/linux/ChildProcess.h"

namespace orvelle::hosts {

long long Now();

class ProgramThere {
public:
    ProgramThere(const Host& host, const std::vector<std::string>& words);
    virtual ~ProgramThere() = default;

    void Say(const std::string& line) { Process.WriteLine(line); }
    // Takes what it has told by now.
    void Take();
    // When it told that for the first time since; nothing while it has not.
    std::optional<long long> Told(const std::string& text, long long since = 0) const;
    // The last that it told, for the log of a test that fails.
    std::string LastTold() const;
    std::size_t TimesTold(const std::string& beginning) const;

    linux::ChildProcess Process;

private:
    struct Event {
        long long At;
        std::string Text;
    };

    virtual void Heard(const std::string&) {}

    std::string part;  // of a line
    std::vector<Event> events;
};

}  // namespace orvelle::hosts
