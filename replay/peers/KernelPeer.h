// The scripted system: the clock, which its own Sleep moves, the programs that are started, and the working directory.
#pragma once

#include "platform/Clock.h"
#include "platform/Processes.h"
#include "replay/Peer.h"
#include "replay/VirtualTime.h"

namespace orvelle::replay {

class KernelPeer final : public Clock, public Processes, private Peer {
public:
    KernelPeer(Transcript& runTranscript, Answers& givenAnswers, VirtualTime& virtualTime)
        : Peer("kernel32", runTranscript, givenAnswers), time(virtualTime) {}

    Long GetTickCount() override;
    void Sleep(Long milliseconds) override;

    Long WinExec(const std::string& commandLine, Long show) override;
    std::string GetModuleFileNameA() override;
    std::string GetCurrentDirectoryA(Long size) override;
    void SetCurrentDirectoryA(const std::string& path) override;

    void SetTickCount(Long tickCount);

private:
    VirtualTime& time;
    Stamp clockMoved = 0;
    Kept<std::string> directory{"C:\\"};
};

// Thrown by the end of the program; only the runner catches it.
class ProgramEnded {};

class ProgramPeer final : public Program, private Peer {
public:
    using Peer::Peer;

    bool PrevInstance() override { return Answer("PrevInstance", {}, {false}).front().As<bool>(); }
    [[noreturn]] void End() override { throw ProgramEnded(); }
};

}  // namespace orvelle::replay
