// The scripted keyboard: a key code is its own virtual key, and key code N is called KN.
#pragma once

#include "platform/Keyboard.h"
#include "replay/Peer.h"

namespace orvelle::replay {

class KeyboardPeer final : public Keyboard, private Peer {
public:
    using Peer::Peer;

    void keybd_event(Long virtualKey, Long scanByte, Long flags, Long extra) override {
        Call("keybd_event", {virtualKey, scanByte, flags, extra});
    }
    Long MapVirtualKeyA(Long code, Long mapType) override { return Ask("MapVirtualKeyA", {code, mapType}, code); }
    std::string GetKeyNameTextA(Long keyMessage, Long size) override {
        return Ask("GetKeyNameTextA", {keyMessage, size}, std::string("K").append(std::to_string(keyMessage >> 16)));
    }
};

}  // namespace orvelle::replay
