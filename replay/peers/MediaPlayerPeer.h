// The scripted media players of the two radios, and what creates them. They play nothing.
#pragma once

#include <memory>

#include "platform/MediaPlayer.h"
#include "replay/Peer.h"

namespace orvelle::replay {

class MediaPlayerPeer final : public MediaPlayer, private Peer {
public:
    using Peer::Peer;

    // RuntimeError where the scenario says that the system has no player.
    void Create();

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

    std::unique_ptr<MediaPlayer> New(Long radio) override;
    // A player that nobody created: nothing is printed.
    std::unique_ptr<MediaPlayer> Present(Long radio);

private:
    std::unique_ptr<MediaPlayerPeer> Make(Long radio);

    Transcript& transcript;
    Answers& answers;
};

}  // namespace orvelle::replay
