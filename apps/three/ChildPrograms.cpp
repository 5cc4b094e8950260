#include "apps/three/ChildPrograms.h"

#include <sys/prctl.h>
#include <unistd.h>

#include <csignal>

namespace orvelle {

namespace {

constexpr int EndMilliseconds = 10'000;

}  // namespace

// Between fork and exec nothing but system calls. The signals that this process waits for are not blocked there.
void StartChild(QProcess& process, const QString& file, const QStringList& words, pid_t group) {
    process.setChildProcessModifier([group, parent = getpid()] {
        if (prctl(PR_SET_PDEATHSIG, SIGTERM) != 0 || getppid() != parent) _exit(127);
        setpgid(0, group);
        sigset_t none;
        sigemptyset(&none);
        sigprocmask(SIG_SETMASK, &none, nullptr);
        signal(SIGPIPE, SIG_DFL);
    });
    if (process.processChannelMode() == QProcess::SeparateChannels)
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(file, words);
}

void EndChild(QProcess& process) {
    if (process.state() == QProcess::NotRunning) return;
    process.terminate();
    if (process.waitForFinished(EndMilliseconds)) return;
    process.kill();
    process.waitForFinished(EndMilliseconds);
}

}  // namespace orvelle
