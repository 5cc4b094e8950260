// Plays sounds by name from a folder, through the user's sound server, to whatever it has chosen for them. Called by
// the program when a panel asks for a sound. Nothing waits and nothing fails: a sound that can't be had, or that plays
// already, passes in silence. A server that is not there, or hangs, is left, and sought again at the next sound.
#pragma once

#include <pulse/context.h>
#include <pulse/stream.h>

#include <filesystem>
#include <map>
#include <memory>
#include <string>

#include "adapters/pulse/PulseLoop.h"
#include "adapters/pulse/WaveFile.h"

namespace orvelle::pulse {

class SoundPlayer {
public:
    // `server` "" is the user's own.
    SoundPlayer(EventLoop& loop, std::filesystem::path folder, std::string server = "");
    SoundPlayer(const SoundPlayer&) = delete;
    SoundPlayer& operator=(const SoundPlayer&) = delete;
    ~SoundPlayer() { Leave(); }

    // As the panel names it: "Tessaly\RADIO_ONCHANNEL.wav".
    void Play(const std::string& name);
    std::size_t Playing() const { return sounds.size(); }

private:
    struct Sound {
        SoundPlayer& Player;
        std::filesystem::path File;
        WaveFile Wave;
        std::size_t Written = 0;
        pa_stream* Stream = nullptr;
        Ticket Bound = {};
    };

    void Connect();
    void Leave();
    void TakeState();
    void Begin(Sound& sound);
    void Write(Sound& sound, std::size_t room);
    void End(const std::filesystem::path& file);

    PulseLoop loop;
    const std::filesystem::path folder;
    const std::string server;
    pa_context* context = nullptr;
    std::map<std::filesystem::path, std::unique_ptr<Sound>> sounds;  // that play or are about to
    Ticket ending;
};

}  // namespace orvelle::pulse
