#include "apps/KeyWatch.h"

#include <cstdlib>
#include <memory>

namespace orvelle {

namespace {

constexpr int FirstKeyCode = 8;  // of the X server, where evdev counts from 0
constexpr int KeyCodes = 256;

}  // namespace

std::vector<int> KeyWatch::KeysDown() const {
    const std::unique_ptr<xcb_query_keymap_reply_t, decltype(&std::free)> reply(
        xcb_query_keymap_reply(connection, xcb_query_keymap(connection), nullptr), &std::free);
    std::vector<int> down;
    for (int code = FirstKeyCode; reply && code < KeyCodes; ++code)
        if (((reply->keys[code / 8] >> (code % 8)) & 1) != 0) down.push_back(code - FirstKeyCode);
    return down;
}

}  // namespace orvelle
