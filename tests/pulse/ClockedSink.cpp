#include "tests/pulse/ClockedSink.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <stdexcept>

#include "adapters/speech/Block.h"
#include "tests/pulse/SoundServers.h"

namespace orvelle::pulse {

namespace {

// The server writes pieces of a page; of four channels they are 5.3 ms long.
constexpr std::size_t PieceBytes = 4096;
constexpr int Channels = 4;
constexpr double PieceSeconds = PieceBytes / sizeof(float) / Channels / double{speech::SampleRate};

void Run(int pipe, double partsPerMillion, const std::stop_token& ending) {
    const auto began = std::chrono::steady_clock::now();
    const double seconds = PieceSeconds / (1 + partsPerMillion / 1e6);
    std::array<char, PieceBytes> piece;
    for (long pieces = 1; !ending.stop_requested(); ++pieces) {
        const std::chrono::duration<double> due(static_cast<double>(pieces) * seconds);
        std::this_thread::sleep_until(began + std::chrono::duration_cast<std::chrono::nanoseconds>(due));
        // One that has nothing to be heard by is silent.
        if (read(pipe, piece.data(), piece.size()) < 0) continue;
    }
}

}  // namespace

ClockedSink::ClockedSink(const std::string& name, const std::filesystem::path& folder, double partsPerMillion) {
    const std::string file = folder / name;
    if (Pactl({"load-module", "module-pipe-sink", "sink_name=" + name, "file=" + file, "format=float32le", "rate=48000",
               "channels=" + std::to_string(Channels)})
            .empty())
        throw std::runtime_error("no sink " + name);
    pipe = FileDescriptor(open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (pipe.Number() < 0 || fcntl(pipe.Number(), F_SETPIPE_SZ, PieceBytes) < 0)
        throw std::runtime_error("no pipe " + file);
    clock = std::jthread(
        [this, partsPerMillion](const std::stop_token& ending) { Run(pipe.Number(), partsPerMillion, ending); });
}

}  // namespace orvelle::pulse
