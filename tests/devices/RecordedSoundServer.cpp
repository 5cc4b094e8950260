#include "tests/devices/RecordedSoundServer.h"

#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <iterator>

#include "tests/linux/WaitUntil.h"

namespace orvelle {

RecordedSoundServer::RecordedSoundServer(std::filesystem::path where) : folder(std::move(where)) {
    pulse::NameSoundFolder(folder);
    server.Start();
    EXPECT_NE(pulse::Pactl(
                  {"load-module", "module-null-sink", "sink_name=nowhere", "rate=22050", "channels=1", "format=s16le"}),
              "");
    const std::string recording = folder / "heard";
    recorder = std::make_unique<linux::ChildProcess>(
        std::vector<std::string>{"parec", "--device", "nowhere.monitor", "--raw", "--format=s16le", "--rate=22050",
                                 "--channels=1", "--latency-msec=10", recording});
    EXPECT_TRUE(linux::WaitUntil([this] { return !Heard().empty(); }));
}

RecordedSoundServer::~RecordedSoundServer() {
    recorder.reset();
    server.Kill();
    std::filesystem::remove(Socket());
}

std::vector<std::int16_t> RecordedSoundServer::Heard() const {
    std::ifstream recording(folder / "heard", std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(recording), {});
    std::vector<std::int16_t> samples(bytes.size() / sizeof(std::int16_t));
    std::memcpy(samples.data(), bytes.data(), samples.size() * sizeof(std::int16_t));
    return samples;
}

}  // namespace orvelle
