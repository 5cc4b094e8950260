// Stands in for the panel as a process: its keyboard, its lock and its ends, told by lines of standard input. What the
// keyboard tells goes to standard error.
//
//   panel-stand-in DISPLAY GUARD LOCK-FOLDER
//
//   begin                  what the panel does before the first key; answers "done"
//   down CODE, up CODE     a stroke; answers "done"
//   holds CODE             answers "yes" or "no"
//   sleep TIME             answers "done" after that many milliseconds, in which the loop is not served
//   cut                    cuts the keyboard's connections to X servers, and answers how many there were
//   hang                   answers "done" and does nothing more
//   instance               answers "first" or "second"
//   return end fail abort crash terminate nothing
//                          the way to end; the last one leaves without any clean-up
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <iostream>
#include <sstream>

#include "adapters/linux/PollEventLoop.h"
#include "adapters/linux/ProcessProgram.h"
#include "adapters/linux/TerminationSignals.h"
#include "adapters/linux/X11Keyboard.h"
#include "adapters/shared/ScanCodes.h"
#include "adapters/shared/SystemClock.h"
#include "platform/RuntimeError.h"

using namespace orvelle;
using namespace orvelle::linux;

namespace {

void Stroke(X11Keyboard& keyboard, Long code, Long flags) {
    keyboard.keybd_event(keyboard.MapVirtualKeyA(code, MapScanCodeToVirtualKeyExtended), code % 256, flags, 0);
}

// The files stay open, as they do where the server cuts a connection.
int CutOff() {
    int count = 0;
    for (int file = STDERR_FILENO + 1; file < 64; ++file) {
        sockaddr_un peer{};
        socklen_t size = sizeof(peer);
        if (getpeername(file, reinterpret_cast<sockaddr*>(&peer), &size) != 0 || peer.sun_family != AF_UNIX) continue;
        // The path may stand behind a zero.
        if (std::string(peer.sun_path, sizeof(peer.sun_path)).find("/.X11-unix/") == std::string::npos) continue;
        shutdown(file, SHUT_RDWR);
        ++count;
    }
    return count;
}

// False if the line says that main is to return.
bool Obey(const std::string& line, X11Keyboard& keyboard, ProcessProgram& program) {
    std::istringstream words(line);
    std::string command;
    Long code = 0;
    words >> command >> code;
    if (command == "return") return false;
    if (command == "end") program.End();
    if (command == "fail") throw RuntimeError(RuntimeError::TypeMismatch);
    if (command == "abort") std::abort();
    if (command == "crash") raise(SIGSEGV);
    if (command == "terminate") std::terminate();
    if (command == "nothing") _exit(0);
    if (command == "begin") keyboard.Keys.Begin();
    if (command == "down") Stroke(keyboard, code, KeyEventExtended);
    if (command == "up") Stroke(keyboard, code, KeyEventExtended | KeyEventUp);
    if (command == "sleep") SystemClock().Sleep(code);
    if (command == "cut")
        std::cout << CutOff() << std::endl;
    else if (command == "holds")
        std::cout << (keyboard.Keys.Holds(static_cast<int>(LinuxKeyOfScanCode(code) + XKeyCodeOffset)) ? "yes" : "no")
                  << std::endl;
    else if (command == "instance")
        std::cout << (program.PrevInstance() ? "second" : "first") << std::endl;
    else
        std::cout << "done" << std::endl;
    while (command == "hang") pause();
    return true;
}

std::string ReadLine() {
    std::string line;
    char character;
    while (read(STDIN_FILENO, &character, 1) == 1 && character != '\n') line += character;
    return line;
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 4) return 2;
    TerminationSignals signals;
    PollEventLoop loop;
    X11Keyboard keyboard(loop, arguments[1], arguments[2]);
    keyboard.Keys.Told = [](const std::string& sentence) { std::cerr << sentence << std::endl; };
    ProcessProgram program(InstanceLock(arguments[3], "panel"));
    const Ticket release = program.AtEnd([&keyboard] { keyboard.Keys.ReleaseAll(); });
    const Ticket signalled = loop.WhenReadable(signals.Descriptor(), [&] { program.EndBySignal(signals.Take()); });
    const Ticket commanded = loop.WhenReadable(STDIN_FILENO, [&] {
        if (!Obey(ReadLine(), keyboard, program)) loop.Stop();
    });
    try {
        loop.Run();
    } catch (const RuntimeError& error) {
        program.Fail(error.Number);
    }
}
