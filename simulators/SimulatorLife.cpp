#include "simulators/SimulatorLife.h"

#include <utility>

namespace orvelle::simulators {

SimulatorLife::SimulatorLife(EventLoop& eventLoop, ProcessQuestions processQuestions)
    : loop(eventLoop), questions(std::move(processQuestions)) {}

SimulatorLife::Told SimulatorLife::Hear(pid_t heard) {
    const bool isAnother = presence == Presence::Absent || heard != process;
    if (isAnother) {
        ++run;
        process = heard;
        ended = heard == 0 ? Ticket() : questions.WhenEnded(heard, [this] { Forget(); });
    }
    quiet = loop.After(QuietMilliseconds, [this] { HearNothing(); });
    forgotten.End();
    const bool wasLive = presence == Presence::Live;
    presence = Presence::Live;
    if (!isAnother && wasLive) return Told::Nothing;
    Changed();
    return Told::Changed;
}

void SimulatorLife::Forget() {
    quiet.End();
    forgotten.End();
    ended.End();
    process = 0;
    Become(Presence::Absent);
}

void SimulatorLife::HearNothing() {
    if (process == 0) forgotten = loop.After(ForgottenMilliseconds - QuietMilliseconds, [this] { Forget(); });
    Become(Presence::Busy);
}

void SimulatorLife::Become(Presence next) {
    if (std::exchange(presence, next) != next) Changed();
}

}  // namespace orvelle::simulators
