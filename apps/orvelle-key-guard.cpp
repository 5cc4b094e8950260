// Lets go of the keys that the panel holds down, when the panel is gone without having done so, or goes on no more.
// Started by the panel, with one end of a line, the set of held keys, and the name of the X server or the panel's own
// keyboard in the kernel; of no use by itself.
#include <poll.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <optional>
#include <utility>

#include "adapters/linux/ControlGroup.h"
#include "adapters/linux/HeldKeys.h"
#include "adapters/linux/KernelKeyboard.h"
#include "adapters/linux/KeyGuard.h"
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

}  // namespace

int main(int count, char** arguments) {
    const FileDescriptor line(linux::KeyGuard::LineDescriptor);
    linux::HeldKeys held{FileDescriptor(linux::KeyGuard::HeldKeysDescriptor)};
    if (count < 2 || held.Descriptor() < 0) return 2;
    std::optional<linux::KernelKeyboard> kernel;
    if (count == 3 && std::strcmp(arguments[2], linux::KeyGuard::KernelArgument) == 0)
        kernel.emplace(FileDescriptor(linux::KeyGuard::KernelDescriptor));
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
        if (panel.revents != 0 && PanelIsGone(line.Number())) return letGo(Panel::IsGone) ? 0 : 1;
        hasLetGo = held.IsEmpty() || held.PatienceLeft() > 0 || letGo(Panel::Hangs);
    }
}
