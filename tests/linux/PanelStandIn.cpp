// Stands in for the panel as a process: its keyboard, its lock and its ends, told by lines of standard input.
//
//   panel-stand-in DISPLAY GUARD LOCK-FOLDER
//
//   down CODE, up CODE     a stroke; answers "done"
//   instance               answers "first" or "second"
//   return end fail abort crash terminate nothing
//                          the way to end; the last one leaves without any clean-up
#include <poll.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <sstream>

#include "adapters/linux/ProcessProgram.h"
#include "adapters/linux/TerminationSignals.h"
#include "adapters/linux/X11Keyboard.h"
#include "platform/RuntimeError.h"

using namespace orvelle;
using namespace orvelle::linux;

namespace {

void Stroke(X11Keyboard& keyboard, Long code, Long flags) {
    keyboard.keybd_event(keyboard.MapVirtualKeyA(code, MapScanCodeToVirtualKeyExtended), code % 256, flags, 0);
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
    if (command == "down") Stroke(keyboard, code, KeyEventExtended);
    if (command == "up") Stroke(keyboard, code, KeyEventExtended | KeyEventUp);
    if (command == "instance")
        std::cout << (program.PrevInstance() ? "second" : "first") << std::endl;
    else
        std::cout << "done" << std::endl;
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
    X11Keyboard keyboard(arguments[1], arguments[2]);
    ProcessProgram program(InstanceLock(arguments[3], "panel"));
    const Ticket release = program.AtEnd([&keyboard] { keyboard.ReleaseAll(); });
    try {
        while (true) {
            std::array<pollfd, 2> files{pollfd{signals.Descriptor(), POLLIN, 0}, pollfd{STDIN_FILENO, POLLIN, 0}};
            poll(files.data(), files.size(), -1);
            if (files[0].revents) program.EndBySignal(signals.Take());
            if (files[1].revents && !Obey(ReadLine(), keyboard, program)) return 0;
        }
    } catch (const RuntimeError& error) {
        program.Fail(error.Number);
    }
}
