// Key strokes and key names on an X server, or in its stead (KeyServer.h): which key a virtual key is, and what a key
// is called. Without a server strokes do nothing and keys have their US names. The keys that are down are let go at the
// end, whichever it is (KeyHolder.h).
#pragma once

#include <string>

#include "adapters/linux/KeyHolder.h"
#include "adapters/linux/KeyServer.h"
#include "adapters/shared/Changes.h"
#include "platform/Keyboard.h"
#include "platform/sides/HeldKeysSide.h"

namespace orvelle::linux {

class X11Keyboard : public Keyboard, public HeldKeysSide {
    KeyServer server;
    Changes changes;

public:
    // `display` "" is the environment's. `guardFile` is the key guard's program, by its full path, and `lastWord` as
    // there; `kernelFile` is where the kernel makes keyboards.
    X11Keyboard(EventLoop& loop, const std::string& display, std::string guardFile, int lastWord = -1,
                const std::string& kernelFile = KernelKeyboard::File);

    // The virtual key alone decides which key it is (VirtualKeys.h), since every stroke bears the extended flag; the
    // scan byte decides where the virtual key is unknown.
    void keybd_event(Long virtualKey, Long scanByte, Long flags, Long extra) override;
    // A number of its own for each code from 0 to 511; 0 for another code or another kind of translation.
    Long MapVirtualKeyA(Long code, Long mapType) override;
    // Never "": a code without a key is named by its number in brackets. In UTF-8.
    std::string GetKeyNameTextA(Long keyMessage, Long size) override;

    std::vector<std::string> HeldKeys() override;
    Ticket Observe(std::function<void()> observer) override { return changes.Observe(std::move(observer)); }

    KeyHolder Keys;  // by the X server's key codes

private:
    std::string Name(Long code);
};

}  // namespace orvelle::linux
