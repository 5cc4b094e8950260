// Lets go of the keys that the panel holds down, when the panel is gone without having done so, or goes on no more.
// Then has the user told of an end that was not an orderly one. Started by the panel, with one end of a line, the set
// of held keys, the name of the X server or the panel's own keyboard in the kernel, and with its last word and its own
// file where the user is to be told; of no use by itself.
#include <fcntl.h>
#include <linux/close_range.h>
#include <poll.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <optional>
#include <string>
#include <utility>

#include "adapters/linux/ControlGroup.h"
#include "adapters/linux/HeldKeys.h"
#include "adapters/linux/KernelKeyboard.h"
#include "adapters/linux/KeyGuard.h"
#include "adapters/linux/LastWord.h"
#include "adapters/linux/OwnFile.h"
#include "adapters/x11/XTestConnection.h"

using namespace orvelle;

namespace {

constexpr int Forever = -1;
constexpr int NextTry = 1000;  // ms

enum class Panel { IsGone, Hangs };

// False if they could not be let go; the keys are in the set again then. A panel that hangs may go on, and counts on
// its note.
bool LetGoOn(StrokeTarget& target, linux::HeldKeys& held, Panel panel) {
    // Taken out before, so that a panel that goes on meanwhile finds what it presses from now on in the set.
    const auto keys = held.TakeAll();
    for (const int keyCode : keys) target.Send(keyCode, KeyStroke::Up);
    if (panel == Panel::IsGone) target.ClearNote();
    target.Finish();
    if (target.Problem().empty()) return true;
    for (const int keyCode : keys) held.Insert(keyCode);
    return false;
}

// What the panel writes only wakes; its end of the line closes when it is gone.
bool PanelIsGone(int line) {
    std::array<char, 16> bytes;
    const ssize_t count = read(line, bytes.data(), bytes.size());
    return count == 0 || (count < 0 && errno != EINTR);
}

// This process becomes the program that tells the user; it returns where there is nothing to tell, or no such program.
void TellOfEnd(const FileDescriptor& lastWord, const char* panel) {
    if (fcntl(lastWord.Number(), F_GETFD) < 0) return;
    // The panel may go on for a moment when it has given its keys up.
    pollfd word{lastWord.Number(), POLLIN, 0};
    poll(&word, 1, Forever);
    const std::optional<std::string> said = linux::LastWord::Read(lastWord.Number());
    if (said && said->empty()) return;
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    close_range(linux::KeyGuard::LineDescriptor, UINT_MAX, CLOSE_RANGE_CLOEXEC);
    const std::string file = linux::BesideOwnFile("orvelle-ended");
    execl(file.c_str(), file.c_str(), panel, said ? said->c_str() : nullptr, nullptr);
}

}  // namespace

int main(int count, char** arguments) {
    const FileDescriptor line(linux::KeyGuard::LineDescriptor);
    linux::HeldKeys held{FileDescriptor(linux::KeyGuard::HeldKeysDescriptor)};
    if (count != 3 || held.Descriptor() < 0) return 2;
    const bool hasKernel = fcntl(linux::KeyGuard::KernelDescriptor, F_GETFD) >= 0;
    std::optional<linux::KernelKeyboard> kernel;
    if (hasKernel) kernel.emplace(FileDescriptor(linux::KeyGuard::KernelDescriptor));
    const FileDescriptor lastWord(linux::KeyGuard::LastWordDescriptor);
    // An X server is reached anew each time.
    const auto letGo = [&](Panel panel) {
        if (held.IsEmpty()) return true;
        if (kernel) return LetGoOn(*kernel, held, panel);
        XTestConnection server(arguments[1]);
        return LetGoOn(server, held, panel);
    };
    linux::LeaveControlGroup("orvelle-key-guard");

    bool hasLetGo = true;
    while (true) {
        pollfd panel{line.Number(), POLLIN, 0};
        const int patience = held.IsEmpty() ? Forever : held.PatienceLeft();
        poll(&panel, 1, hasLetGo ? patience : NextTry);
        if (panel.revents != 0 && PanelIsGone(line.Number())) {
            hasLetGo = letGo(Panel::IsGone);
            TellOfEnd(lastWord, arguments[2]);
            return hasLetGo ? 0 : 1;
        }
        hasLetGo = held.IsEmpty() || held.PatienceLeft() > 0 || letGo(Panel::Hangs);
    }
}
