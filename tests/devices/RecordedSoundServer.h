// A sound server of the test's own, with a sink that nobody hears, and what is sent there.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "tests/linux/ChildProcess.h"
#include "tests/pulse/SoundServers.h"

namespace orvelle {

class RecordedSoundServer {
public:
    // Its files lie in `folder`, where it can be started again, and which the environment names from then on.
    explicit RecordedSoundServer(std::filesystem::path folder);
    ~RecordedSoundServer();

    std::string Address() const { return "unix:" + Socket().string(); }
    void Kill(int signal) { server.Signal(signal); }
    // What the sink was sent since the server is there, 22,050 samples a second.
    std::vector<std::int16_t> Heard() const;

private:
    std::filesystem::path Socket() const { return folder / "pulse" / "native"; }

    const std::filesystem::path folder;
    pulse::PulseAudioServer server;
    std::unique_ptr<linux::ChildProcess> recorder;
};

}  // namespace orvelle
