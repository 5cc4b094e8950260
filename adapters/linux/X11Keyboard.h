// Key strokes and key names on an X server: which key a virtual key is, and what a key is called. Without a server
// strokes do nothing and keys have their US names. The keys that are down are let go at the end, whichever it is
// (KeyHolder.h).
#pragma once

#include <string>

#include "adapters/linux/KeyHolder.h"
#include "adapters/linux/KeyServer.h"
#include "platform/Keyboard.h"

namespace orvelle::linux {

class X11Keyboard : public Keyboard {
    KeyServer server;

public:
    // `display` "" is the environment's. `guardFile` is the key guard's program, by its full path; `lastWord` as there.
    X11Keyboard(EventLoop& loop, const std::string& display, std::string guardFile, int lastWord = -1);

    // The virtual key alone decides which key it is (VirtualKeys.h), since every stroke bears the extended flag; the
    // scan byte decides where the virtual key is unknown.
    void keybd_event(Long virtualKey, Long scanByte, Long flags, Long extra) override;
    // A number of its own for each code from 0 to 511; 0 for another code or another kind of translation.
    Long MapVirtualKeyA(Long code, Long mapType) override;
    // Never "": a code without a key is named by its number in brackets. In UTF-8.
    std::string GetKeyNameTextA(Long keyMessage, Long size) override;

    KeyHolder Keys;  // by the X server's key codes
};

}  // namespace orvelle::linux
