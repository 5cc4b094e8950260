// Where this program's strokes go and the layout's names come from, chosen at the first use: the X server; in a Wayland
// session a keyboard of this program's own in the kernel, and where the user may have none, the X server that the
// session brings along. The X server has one connection for strokes and names. It is made when it is first needed, and
// made again where it was cut; no event is waited for.
#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "adapters/linux/KernelKeyboard.h"
#include "adapters/x11/KeyLayout.h"
#include "adapters/x11/XTestConnection.h"

namespace orvelle::linux {

class KeyServer {
public:
    // `display` "" is the environment's; `kernelFile` is where the kernel makes keyboards.
    KeyServer(std::string display, std::string kernelFile)
        : display(std::move(display)), kernelFile(std::move(kernelFile)) {}

    // One whose Problem() is told where no stroke can be sent. An X server is tried once a second at most.
    StrokeTarget& Reach();
    // The character of a key by the current layout, "" where there is none.
    std::string Character(int keyCode);
    // Why strokes can't be sent; of what was reached last, "" also before.
    std::string Problem() const;
    // Which windows strokes don't reach in a Wayland session; one sentence, "" where they reach all.
    const std::string& LimitProblem() const { return limit; }
    // The descriptor of the keyboard in the kernel; -1 where strokes go to an X server, or nowhere yet.
    int KernelDescriptor() const { return kernel ? kernel->Descriptor() : -1; }

private:
    using Clock = std::chrono::steady_clock;

    XTestConnection& ReachServer();
    void Connect();
    void Choose();

    std::string display;
    std::string kernelFile;
    Clock::time_point nextTry;
    std::optional<XTestConnection> connection;
    std::optional<KernelKeyboard> kernel;
    bool hadServer = false;  // when it was chosen
    std::string limit;       // of the strokes in a Wayland session
    std::optional<KeyLayout> layout;
};

}  // namespace orvelle::linux
