// The sound of several computers on one sound server of the test's own: a microphone and an ear for each, which are
// null sinks at the rate of the voice, so that nothing is resampled. What is spoken into a microphone is played into
// its sink; what is heard is recorded from the monitor of the ear. Computers count from 0.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "tests/pulse/SoundServers.h"

namespace orvelle::heard {

class SoundOfComputers {
public:
    enum class Server { PulseAudio, PipeWire };
    explicit SoundOfComputers(int computers = 2, Server kind = Server::PulseAudio);

    // The sink into which a mouth speaks, and the source that a program records.
    static std::string Mouth(int computer) { return "microphone" + std::to_string(computer); }
    static std::string Microphone(int computer) { return Mouth(computer) + ".monitor"; }
    // The sinks into which a program plays, and the sources where that is heard. Output 0 is the headset, 1 the
    // speakers.
    static std::string Output(int computer, int output = 0) {
        return (output == 0 ? "headset" : "speakers") + std::to_string(computer);
    }
    static std::string Ear(int computer, int output = 0) { return Output(computer, output) + ".monitor"; }

    // Where the server is, for programs of another environment.
    std::string Address() const { return "unix:" + (folder.Path() / "pulse" / "native").string(); }

    // The whole server is killed, and is there again with all its devices.
    void Kill() { server->Kill(); }
    void Start();
    // One device goes, and comes back.
    void Pull(const std::string& sink);
    void Add(const std::string& sink);

    // Which goes with this object.
    const std::filesystem::path& Folder() const { return folder.Path(); }

private:
    const int count;
    pulse::SoundFolder folder;
    const std::unique_ptr<pulse::SoundServerProcesses> server;
};

}  // namespace orvelle::heard
