// A sound server of the test's own, with a sink that nobody hears, and what is sent there.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "tests/linux/ChildProcess.h"

namespace orvelle {

class RecordedSoundServer {
public:
    // Its files lie in `folder`, where it can be started again.
    explicit RecordedSoundServer(std::filesystem::path folder);
    ~RecordedSoundServer();

    std::string Address() const { return "unix:" + (folder / "socket").string(); }
    void Kill(int signal) { process->Kill(signal); }
    // What the sink was sent since the server is there, 22,050 samples a second.
    std::vector<std::int16_t> Heard() const;

private:
    const std::filesystem::path folder;
    std::unique_ptr<linux::ChildProcess> process;
    std::unique_ptr<linux::ChildProcess> recorder;
};

}  // namespace orvelle
