#include "replay/peers/MediaPlayerPeer.h"

#include "platform/RuntimeError.h"

namespace orvelle::replay {

void MediaPlayerPeer::Create() {
    constexpr int CannotCreateObject = 429;
    Call("New");
    const bool isThere = Answer("New", {}, {true}).front().As<bool>();
    if (!isThere) throw RuntimeError(CannotCreateObject);
}

std::unique_ptr<MediaPlayer> MediaPlayerFactoryPeer::New(Long radio) {
    auto player = Make(radio);
    player->Create();
    return player;
}

std::unique_ptr<MediaPlayer> MediaPlayerFactoryPeer::Present(Long radio) { return Make(radio); }

std::unique_ptr<MediaPlayerPeer> MediaPlayerFactoryPeer::Make(Long radio) {
    return std::make_unique<MediaPlayerPeer>(radio == 0 ? "WMPCOM1" : "WMPCOM2", transcript, answers);
}

}  // namespace orvelle::replay
