#include "adapters/media/LoadedMediaPlayers.h"

#include <utility>

namespace orvelle::media {

// Keeps what was set until there is a player of the module to be told of it.
class LoadedMediaPlayers::Player : public MediaPlayer {
public:
    explicit Player(LoadedMediaPlayers& factory) : players(factory) {}

    void AutoRewind(bool on) override { Keep(rewinds, on, &MediaPlayer::AutoRewind); }
    void Open(const std::string& source) override {
        if (!player) Begin();
        if (player) player->Open(source);
    }
    void Stop() override {
        if (player) player->Stop();
    }
    void Mute(bool on) override { Keep(muted, on, &MediaPlayer::Mute); }
    void Volume(Long value) override { Keep(volume, value, &MediaPlayer::Volume); }
    Long PlayState() override { return player ? player->PlayState() : 0; }

private:
    template <typename Value>
    void Keep(Value& kept, Value value, void (MediaPlayer::*tell)(Value)) {
        kept = value;
        if (player) (player.get()->*tell)(value);
    }
    void Begin() {
        std::string reason;
        NewOrvelleMediaPlayerFunction* const make = players.load(reason);
        if (make == nullptr) return Tell("Recordings can't be played: " + reason + ".");
        player.reset(make([this](const std::string& source, const std::string& why) {
            Tell("The recording \"" + source + "\" can't be played: " + why + ".");
        }));
        player->AutoRewind(rewinds);
        player->Mute(muted);
        player->Volume(volume);
    }
    // A source that can't be played is opened again and again.
    void Tell(const std::string& sentence) {
        if (std::exchange(told, sentence) != sentence) players.Told(sentence);
    }

    LoadedMediaPlayers& players;
    std::unique_ptr<MediaPlayer> player;
    std::string told;
    bool rewinds = false;
    bool muted = false;
    Long volume = 0;
};

LoadedMediaPlayers::LoadedMediaPlayers(LoadModule loadModule) : load(std::move(loadModule)) {}

std::unique_ptr<MediaPlayer> LoadedMediaPlayers::New(Long) { return std::make_unique<Player>(*this); }

}  // namespace orvelle::media
