// A thread that carries sound is served before all that can wait, as a simulator beside it leaves a loaded machine: by
// the kernel's round-robin among urgent threads, where the user has the right to that (RLIMIT_RTPRIO), else as any
// other one. Threads that it starts are not urgent. Called on the thread itself, by whoever does the sound's work
// there.
#pragma once

namespace orvelle::linux {

void BecomeUrgent();

}  // namespace orvelle::linux
