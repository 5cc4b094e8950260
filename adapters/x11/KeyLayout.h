// Which character a key has in the keyboard layout that is current on the X server. The layout is read once and again
// when the server told that it or the chosen group changed; the owner of the connection hands its events on.
#pragma once

#include <xcb/xcb.h>
#include <xkbcommon/xkbcommon.h>

#include <memory>
#include <string>

namespace orvelle {

class KeyLayout {
public:
    // The connection must outlive this object; a broken one, or one without XKB, gives no characters.
    explicit KeyLayout(xcb_connection_t* connection);

    void Notice(const xcb_generic_event_t& event);
    // Whether the next answer reads the layout first, which takes some milliseconds.
    bool HasChanged() const { return !isCurrent; }
    // The character of the unshifted key in upper case, in UTF-8; "" where the layout has none that can be shown.
    std::string Character(int keyCode);

private:
    void Read();

    struct Release {
        void operator()(xkb_context* context) const { xkb_context_unref(context); }
        void operator()(xkb_keymap* keymap) const { xkb_keymap_unref(keymap); }
        void operator()(xkb_state* state) const { xkb_state_unref(state); }
    };

    xcb_connection_t* connection;
    int device = -1;
    unsigned char firstEvent = 0;
    bool isCurrent = false;
    std::unique_ptr<xkb_context, Release> context;
    std::unique_ptr<xkb_keymap, Release> keymap;
    std::unique_ptr<xkb_state, Release> state;
};

}  // namespace orvelle
