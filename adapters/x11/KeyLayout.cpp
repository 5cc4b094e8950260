#include "adapters/x11/KeyLayout.h"

#include <xkbcommon/xkbcommon-keysyms.h>
#include <xkbcommon/xkbcommon-x11.h>

#include <array>
#include <utility>

#include "adapters/x11/XkbRequests.h"

namespace orvelle {

namespace {

// A dead key is named by its accent alone.
std::string Accent(xkb_keysym_t symbol) {
    static constexpr std::pair<xkb_keysym_t, const char*> Accents[] = {
        {XKB_KEY_dead_grave, "`"},       {XKB_KEY_dead_acute, "´"},     {XKB_KEY_dead_circumflex, "^"},
        {XKB_KEY_dead_tilde, "~"},       {XKB_KEY_dead_macron, "¯"},    {XKB_KEY_dead_breve, "˘"},
        {XKB_KEY_dead_abovedot, "˙"},    {XKB_KEY_dead_diaeresis, "¨"}, {XKB_KEY_dead_abovering, "°"},
        {XKB_KEY_dead_doubleacute, "˝"}, {XKB_KEY_dead_caron, "ˇ"},     {XKB_KEY_dead_cedilla, "¸"},
        {XKB_KEY_dead_ogonek, "˛"},
    };
    for (const auto& [dead, accent] : Accents)
        if (dead == symbol) return accent;
    return "";
}

// As it is printed on the key. The library has no upper case for some letters, by its version for ß, which no key
// shows.
xkb_keysym_t UpperCase(xkb_keysym_t symbol) {
    const xkb_keysym_t upper = xkb_keysym_to_upper(symbol);
    return symbol == XKB_KEY_ssharp || xkb_keysym_to_utf32(upper) == 0 ? symbol : upper;
}

std::string Text(xkb_keysym_t symbol) {
    const xkb_keysym_t upper = UpperCase(symbol);
    const std::uint32_t character = xkb_keysym_to_utf32(upper);
    const bool canBeShown = character > 0x20 && (character < 0x7F || character > 0xA0);
    std::array<char, 8> text{};
    if (!canBeShown || xkb_keysym_to_utf8(upper, text.data(), text.size()) <= 0) return Accent(symbol);
    return text.data();
}

}  // namespace

KeyLayout::KeyLayout(xcb_connection_t* connection) : connection(connection) {
    if (xcb_connection_has_error(connection)) return;
    if (!xkb_x11_setup_xkb_extension(connection, XKB_X11_MIN_MAJOR_XKB_VERSION, XKB_X11_MIN_MINOR_XKB_VERSION,
                                     XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr, &firstEvent, nullptr))
        return;
    device = xkb_x11_get_core_keyboard_device_id(connection);
    context.reset(xkb_context_new(XKB_CONTEXT_NO_DEFAULT_INCLUDES));
    if (device < 0 || !context) return;
    xkb_context_set_log_level(context.get(), XKB_LOG_LEVEL_CRITICAL);

    SelectLayoutEvents(connection, device);
}

void KeyLayout::Notice(const xcb_generic_event_t& event) {
    if (firstEvent != 0 && (event.response_type & 0x7F) == firstEvent) isCurrent = false;
}

void KeyLayout::Read() {
    isCurrent = true;
    state.reset();
    keymap.reset();
    if (device < 0 || !context || xcb_connection_has_error(connection)) return;
    keymap.reset(xkb_x11_keymap_new_from_device(context.get(), connection, device, XKB_KEYMAP_COMPILE_NO_FLAGS));
    if (keymap) state.reset(xkb_x11_state_new_from_device(keymap.get(), connection, device));
}

std::string KeyLayout::Character(int keyCode) {
    if (!isCurrent) Read();
    if (!state) return "";
    const auto key = static_cast<xkb_keycode_t>(keyCode);
    const xkb_layout_index_t layout = xkb_state_key_get_layout(state.get(), key);
    const xkb_keysym_t* symbols = nullptr;
    const int count = xkb_keymap_key_get_syms_by_level(keymap.get(), key, layout, 0, &symbols);
    return count == 1 ? Text(symbols[0]) : "";
}

}  // namespace orvelle
