#include "adapters/linux/X11Keyboard.h"

#include <utility>

#include "adapters/linux/VirtualKeys.h"
#include "adapters/shared/KeyNames.h"
#include "adapters/shared/ScanCodes.h"

namespace orvelle::linux {

namespace {

// The X key code of a key code, 0 without a key.
int XKeyCode(Long code) {
    const Long linuxKey = LinuxKeyOfScanCode(code);
    return linuxKey == 0 ? 0 : static_cast<int>(linuxKey + XKeyCodeOffset);
}

// What a buffer of `size` characters takes beside the closing zero, with no character of several bytes cut in two.
std::string Cut(std::string name, Long size) {
    std::size_t room = size > 0 ? static_cast<std::size_t>(size) - 1 : 0;
    if (name.size() <= room) return name;
    while (room > 0 && (static_cast<unsigned char>(name[room]) & 0xC0) == 0x80) --room;
    name.resize(room);
    return name;
}

}  // namespace

X11Keyboard::X11Keyboard(EventLoop& loop, const std::string& display, std::string guardFile, int lastWord,
                         const std::string& kernelFile)
    : server(display, kernelFile),
      changes(loop),
      Keys(loop, server, KeyGuard(std::move(guardFile), display, lastWord)) {
    Keys.Changed = [this] { changes.Mark(); };
}

void X11Keyboard::keybd_event(Long virtualKey, Long scanByte, Long flags, Long) {
    const Long known = CodeOfVirtualKey(virtualKey);
    const int keyCode = XKeyCode(known >= 0 ? known : scanByte & 0xFF);
    if (keyCode == 0) return;
    if (flags & KeyEventUp)
        Keys.Release(keyCode);
    else
        Keys.Press(keyCode);
}

Long X11Keyboard::MapVirtualKeyA(Long code, Long mapType) {
    const bool isCode = code >= 0 && code < KeyCodes;
    return isCode && mapType == MapScanCodeToVirtualKeyExtended ? VirtualKeyOfCode(code) : 0;
}

std::string X11Keyboard::GetKeyNameTextA(Long keyMessage, Long size) {
    return Cut(Name((keyMessage >> 16) & (KeyCodes - 1)), size);
}

std::string X11Keyboard::Name(Long code) {
    const KeyDescription key = DescribeKey(code);
    std::string name;
    if (key.IsCharacter) name = server.Character(XKeyCode(code));
    if (name.empty()) name = key.Name;
    return name.empty() ? std::string("[").append(std::to_string(code)).append("]") : name;
}

std::vector<std::string> X11Keyboard::HeldKeys() {
    std::vector<std::string> names;
    for (const int keyCode : Keys.Held()) names.push_back(Name(ScanCodeOfLinuxKey(keyCode - XKeyCodeOffset)));
    return names;
}

}  // namespace orvelle::linux
