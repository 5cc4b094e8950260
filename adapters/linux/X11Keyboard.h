// Key strokes and key names on an X server. The connection is made when it is first needed, and no event is waited for.
// The set of keys that are down because of this program is kept; ReleaseAll lets them go, the destructor too, and the
// key guard does it where this program was killed. Without a server strokes do nothing and keys have their US names.
#pragma once

#include <optional>
#include <string>

#include "adapters/linux/HeldKeys.h"
#include "adapters/linux/KeyGuard.h"
#include "adapters/x11/KeyLayout.h"
#include "adapters/x11/XTestConnection.h"
#include "platform/Keyboard.h"

namespace orvelle::linux {

class X11Keyboard : public Keyboard {
public:
    // `display` "" is the environment's. `guardFile` is the key guard's program, by its full path.
    X11Keyboard(std::string display, std::string guardFile);
    ~X11Keyboard() override { ReleaseAll(); }

    // The virtual key alone decides which key it is (VirtualKeys.h), since every stroke bears the extended flag; the
    // scan byte decides where the virtual key is unknown.
    void keybd_event(Long virtualKey, Long scanByte, Long flags, Long extra) override;
    // A number of its own for each code from 0 to 511; 0 for another code or another kind of translation.
    Long MapVirtualKeyA(Long code, Long mapType) override;
    // Never "": a code without a key is named by its number in brackets. In UTF-8.
    std::string GetKeyNameTextA(Long keyMessage, Long size) override;

    // Whether the key of that X key code is down because of this program.
    bool Holds(int keyCode) const { return held.Contains(keyCode); }
    // To be called at the program's end, whichever it is.
    void ReleaseAll();
    // What keeps keys from being pressed, or from being let go whatever happens; one sentence, "" if all is well.
    std::string Problem();

private:
    XTestConnection& Server();
    std::string CharacterOf(Long code);

    std::string display;
    HeldKeys held;
    KeyGuard guard;
    bool guardFailed = false;
    std::optional<XTestConnection> server;
    std::optional<KeyLayout> layout;
};

}  // namespace orvelle::linux
