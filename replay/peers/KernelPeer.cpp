#include "replay/peers/KernelPeer.h"

namespace orvelle::replay {

Long KernelPeer::GetTickCount() {
    return Answer("GetTickCount", {}, {time.TickCount()}, clockMoved).front().As<Long>();
}

// Whoever waits sees the time go on, whatever count the scenario gave before.
void KernelPeer::Sleep(Long milliseconds) {
    Call("Sleep", {milliseconds});
    time.MoveTo(time.Elapsed() + milliseconds);
    clockMoved = Now();
}

Long KernelPeer::WinExec(const std::string& commandLine, Long show) {
    constexpr Long Started = 33;
    Call("WinExec", {commandLine, show});
    return Answer("WinExec", {commandLine, show}, {Started}).front().As<Long>();
}

std::string KernelPeer::GetModuleFileNameA() {
    return Ask<std::string>("GetModuleFileNameA", {}, "C:\\OrvelleCP\\OrvelleCP.exe");
}

std::string KernelPeer::GetCurrentDirectoryA(Long size) {
    return Ask("GetCurrentDirectoryA", {size}, directory.Held, directory.Since);
}

void KernelPeer::SetCurrentDirectoryA(const std::string& path) {
    Call("SetCurrentDirectoryA", {path});
    Keep(directory, path);
}

void KernelPeer::SetTickCount(Long tickCount) {
    time.SetTickCount(tickCount);
    clockMoved = Now();
}

}  // namespace orvelle::replay
