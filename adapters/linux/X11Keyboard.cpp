#include "adapters/linux/X11Keyboard.h"

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

X11Keyboard::X11Keyboard(std::string display, std::string guardFile)
    : display(std::move(display)), guard(std::move(guardFile), this->display) {}

XTestConnection& X11Keyboard::Server() {
    if (!server) server.emplace(display);
    server->TakeEvents([this](const xcb_generic_event_t& event) {
        if (layout) layout->Notice(event);
    });
    return *server;
}

void X11Keyboard::keybd_event(Long virtualKey, Long scanByte, Long flags, Long) {
    const Long known = CodeOfVirtualKey(virtualKey);
    const int keyCode = XKeyCode(known >= 0 ? known : scanByte & 0xFF);
    if (keyCode == 0 || !Server().Problem().empty()) return;

    // The set is never behind the server: a key is in it before it goes down and until the server has let it go, since
    // a server may drop what it has not read yet when this program dies.
    if (flags & KeyEventUp) {
        server->Send(keyCode, KeyStroke::Up);
        server->Finish();
        held.Erase(keyCode);
    } else {
        guardFailed = !guard.Watch(held);
        held.Insert(keyCode);
        server->Send(keyCode, KeyStroke::Down);
    }
}

Long X11Keyboard::MapVirtualKeyA(Long code, Long mapType) {
    const bool isCode = code >= 0 && code < KeyCodes;
    return isCode && mapType == MapScanCodeToVirtualKeyExtended ? VirtualKeyOfCode(code) : 0;
}

std::string X11Keyboard::GetKeyNameTextA(Long keyMessage, Long size) {
    const Long code = (keyMessage >> 16) & (KeyCodes - 1);
    const KeyDescription key = DescribeKey(code);
    std::string name;
    if (key.IsCharacter) name = CharacterOf(code);
    if (name.empty()) name = key.Name;
    return Cut(name.empty() ? "[" + std::to_string(code) + "]" : name, size);
}

std::string X11Keyboard::CharacterOf(Long code) {
    xcb_connection_t* const connection = Server().Connection();
    if (!layout) layout.emplace(connection);
    return layout->Character(XKeyCode(code));
}

void X11Keyboard::ReleaseAll() {
    const auto keys = held.Keys();
    if (keys.empty()) return;
    for (const int keyCode : keys) server->Send(keyCode, KeyStroke::Up);
    server->Finish();
    for (const int keyCode : keys) held.Erase(keyCode);
}

std::string X11Keyboard::Problem() {
    std::string problem = Server().Problem();
    if (problem.empty() && guardFailed)
        problem = "The program " + guard.File() +
                  " can't be started, so a key that is held down stays down if the panel is killed.";
    return problem;
}

}  // namespace orvelle::linux
