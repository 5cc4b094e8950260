// Whether a simulator is there, by its process and what was heard of it: the rule that all sources share. A source
// tells what it hears and from which process; times are the loop's.
#pragma once

#include <sys/types.h>

#include "platform/Event.h"
#include "platform/EventLoop.h"
#include "simulators/ProcessQuestions.h"
#include "simulators/SimulatorSource.h"

namespace orvelle::simulators {

class SimulatorLife {
public:
    static constexpr Long QuietMilliseconds = 2000;        // without a word: busy
    static constexpr Long ForgottenMilliseconds = 10'000;  // without a word, and the process unknown: gone

    SimulatorLife(EventLoop& eventLoop, ProcessQuestions processQuestions);

    enum class Told { Nothing, Changed };
    // Something was heard; `process` 0 where that is unknown. Another process than before is another run. Whether that
    // was told, and with it whatever the source had heard.
    Told Hear(pid_t process);
    // It has said itself that it goes, or can't be asked any more.
    void Forget();

    Presence Stands() const { return presence; }
    int Run() const { return run; }
    pid_t Process() const { return process; }

    Event<> Changed;  // presence or run

private:
    void Become(Presence next);
    void HearNothing();

    EventLoop& loop;
    const ProcessQuestions questions;
    Presence presence = Presence::Absent;
    int run = 0;
    pid_t process = 0;
    Ticket quiet, forgotten, ended;
};

}  // namespace orvelle::simulators
