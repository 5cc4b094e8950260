// What the system knows of a process, alone or with all its descendants, and of the computer as a whole, read from
// /proc. A process that is gone counts as nothing.
#pragma once

#include <sys/types.h>

namespace orvelle {

struct Memory {  // MiB
    double Resident = 0;
    double Proportional = 0;  // shared pages divided among those who share them
    double Private = 0;       // written by it, so that nobody can share it
};

struct Activity {            // since the process began, over all threads
    double WakeUps = 0;      // voluntary context switches: each is a sleep, and so a wake-up
    double Preemptions = 0;  // involuntary ones
    double CpuMilliseconds = 0;
};

struct CpuTime {  // of the computer, in its own units
    double Idle = 0;
    double All = 0;
};

Memory ReadMemory(pid_t process);
Activity ReadActivity(pid_t process);
Activity ReadActivityOfOne(pid_t process);  // without its descendants
CpuTime ReadCpuTime();

}  // namespace orvelle
