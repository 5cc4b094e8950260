#include "adapters/embedded/MediaPlayers.h"

#include <utility>

#include "platform/RuntimeError.h"

namespace orvelle::embedded {

namespace {

constexpr int ComponentCannotCreateObject = 429;

class EmbeddedMediaPlayer : public MediaPlayer {
public:
    EmbeddedMediaPlayer(PlayerState& playerState, Changes& playerChanges) : state(playerState), changes(playerChanges) {
        state = {};
        state.Exists = true;
        changes.Mark();
    }
    EmbeddedMediaPlayer(const EmbeddedMediaPlayer&) = delete;
    EmbeddedMediaPlayer& operator=(const EmbeddedMediaPlayer&) = delete;
    ~EmbeddedMediaPlayer() override {
        state = {};
        changes.Mark();
    }

    void AutoRewind(bool on) override { Set(state.AutoRewind, on); }
    void Open(const std::string& source) override {
        Set(state.Source, source);
        Set(state.Playing, true);
    }
    void Stop() override { Set(state.Playing, false); }
    void Mute(bool on) override { Set(state.Muted, on); }
    void Volume(Long value) override { Set(state.Volume, value); }
    Long PlayState() override { return state.Playing ? 2 : 0; }

private:
    template <typename Value>
    void Set(Value& member, const Value& value) {
        if (member == value) return;
        member = value;
        changes.Mark();
    }

    PlayerState& state;
    Changes& changes;
};

}  // namespace

std::unique_ptr<MediaPlayer> MediaPlayers::New(Long radio) {
    if (!playersAvailable) throw RuntimeError(ComponentCannotCreateObject);
    return std::make_unique<EmbeddedMediaPlayer>(players.at(static_cast<std::size_t>(radio)), Changed);
}

void MediaPlayers::EndRecording(Long radio) {
    players.at(static_cast<std::size_t>(radio)).Playing = false;
    Changed.Mark();
}

}  // namespace orvelle::embedded
