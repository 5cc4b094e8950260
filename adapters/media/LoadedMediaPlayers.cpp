#include "adapters/media/LoadedMediaPlayers.h"

#include <dlfcn.h>

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
        NewOrvelleMediaPlayerFunction* const make = players.Load();
        if (make == nullptr) {
            const char* const why = dlerror();
            return Tell(std::string("Recordings can't be played: ") + (why ? why : "their module does not fit") + ".");
        }
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

LoadedMediaPlayers::LoadedMediaPlayers(const std::vector<std::filesystem::path>& places) {
    std::error_code unknown;
    for (const std::filesystem::path& place : places)
        if (module.empty() && std::filesystem::exists(place, unknown)) module = place;
}

std::unique_ptr<MediaPlayer> LoadedMediaPlayers::New(Long) { return std::make_unique<Player>(*this); }

// Never unloaded, as threads of its libraries go on.
NewOrvelleMediaPlayerFunction* LoadedMediaPlayers::Load() {
    if (newPlayer == nullptr)
        if (void* const loaded = dlopen(module.c_str(), RTLD_NOW | RTLD_LOCAL))
            newPlayer = reinterpret_cast<NewOrvelleMediaPlayerFunction*>(dlsym(loaded, "NewOrvelleMediaPlayer"));
    return newPlayer;
}

}  // namespace orvelle::media
