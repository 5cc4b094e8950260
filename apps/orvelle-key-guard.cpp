// Lets go of the keys that the panel holds down, when the panel is gone without having done so. Started by the panel,
// with the read end of a pipe, the set of held keys and the name of the X server; of no use by itself.
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "adapters/linux/HeldKeys.h"
#include "adapters/linux/KeyGuard.h"
#include "adapters/x11/XTestConnection.h"

using namespace orvelle;

int main(int count, char** arguments) {
    const linux::FileDescriptor pipe(linux::KeyGuard::PipeDescriptor);
    const linux::HeldKeys held{linux::FileDescriptor(linux::KeyGuard::HeldKeysDescriptor)};
    if (count != 2 || held.Descriptor() < 0) return 2;

    // The panel never writes; its end of the pipe closes when it is gone.
    char byte;
    while (read(pipe.Number(), &byte, 1) > 0 || errno == EINTR) errno = 0;

    const auto keys = held.Keys();
    if (keys.empty()) return 0;
    XTestConnection server(arguments[1]);
    for (const int keyCode : keys) server.Send(keyCode, KeyStroke::Up);
    server.Finish();
    return server.Problem().empty() ? 0 : 1;
}
