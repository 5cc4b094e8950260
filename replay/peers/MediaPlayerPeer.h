// The scripted media players of the two radios, and what creates them. They play nothing.
#pragma once

#include "platform/MediaPlayer.h"
#include "replay/Peer.h"

namespace orvelle::replay {

class MediaPlayerPeer final : public MediaPlayer, private Peer {
public:
    using Peer::Peer;

    void Created() { Call("New"); }

    void AutoRewind(bool on) override { WriteProperty("AutoRewind", on); }
    void Open(const std::string& source) override { Call("Open", {source}); }
    void Stop() override { Call("Stop"); }
    void Mute(bool on) override { WriteProperty("Mute", on); }
    void Volume(Long value) override { WriteProperty("Volume", value); }
    Long PlayState() override { return ReadProperty<Long>("PlayState", 0); }
};

class MediaPlayerFactoryPeer final : public MediaPlayerFactory {
public:
    MediaPlayerFactoryPeer(Transcript& runTranscript, Answers& givenAnswers)
        : transcript(runTranscript), answers(givenAnswers) {}

    std::unique_ptr<MediaPlayer> New(Long radio) override {
        auto player = std::make_unique<MediaPlayerPeer>(radio == 0 ? "WMPCOM1" : "WMPCOM2", transcript, answers);
        player->Created();
        return player;
    }

private:
    Transcript& transcript;
    Answers& answers;
};

}  // namespace orvelle::replay
