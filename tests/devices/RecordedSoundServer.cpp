#include "tests/devices/RecordedSoundServer.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <vector>

#include "tests/linux/WaitUntil.h"

namespace orvelle {

RecordedSoundServer::RecordedSoundServer(std::filesystem::path where) : folder(std::move(where)) {
    // All that the server keeps for a user lies there, too.
    for (const char* const name : {"HOME", "XDG_RUNTIME_DIR", "PULSE_RUNTIME_PATH", "PULSE_STATE_PATH"})
        setenv(name, folder.c_str(), 1);
    process = std::make_unique<linux::ChildProcess>(
        std::vector<std::string>{"pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no",
                                 "--disable-shm=yes", "--high-priority=no", "--realtime=no", "-L",
                                 "module-native-protocol-unix auth-anonymous=1 socket=" + (folder / "socket").string(),
                                 "-L", "module-null-sink sink_name=nowhere rate=22050 channels=1 format=s16le"});
    EXPECT_TRUE(linux::WaitUntil([this] {
        return linux::ChildProcess({"pactl", "--server", Address(), "info"}).Wait() == 0;
    }));
    const std::string recording = folder / "heard";
    recorder = std::make_unique<linux::ChildProcess>(
        std::vector<std::string>{"parec", "--server", Address(), "--device", "nowhere.monitor", "--raw",
                                 "--format=s16le", "--rate=22050", "--channels=1", "--latency-msec=10", recording});
    EXPECT_TRUE(linux::WaitUntil([this] { return !Heard().empty(); }));
}

RecordedSoundServer::~RecordedSoundServer() {
    recorder.reset();
    process.reset();
    std::filesystem::remove(folder / "socket");
}

std::vector<std::int16_t> RecordedSoundServer::Heard() const {
    std::ifstream recording(folder / "heard", std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(recording), {});
    std::vector<std::int16_t> samples(bytes.size() / sizeof(std::int16_t));
    std::memcpy(samples.data(), bytes.data(), samples.size() * sizeof(std::int16_t));
    return samples;
}

}  // namespace orvelle
