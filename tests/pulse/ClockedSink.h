// A sink whose clock is the test's own, as that of a second sound card is: a pipe of the sound server's, PulseAudio's
// alone, which takes from it as much as is read. Goes with the object.
#pragma once

#include <filesystem>
#include <string>
#include <thread>

#include "adapters/shared/FileDescriptor.h"

namespace orvelle::pulse {

class ClockedSink {
public:
    // `partsPerMillion` is by how much it is faster than this computer's clock. The pipe lies in `folder`.
    // std::runtime_error where the server makes no such sink.
    ClockedSink(const std::string& name, const std::filesystem::path& folder, double partsPerMillion);
    ClockedSink(const ClockedSink&) = delete;
    ClockedSink& operator=(const ClockedSink&) = delete;
    ~ClockedSink() = default;

private:
    FileDescriptor pipe;
    std::jthread clock;
};

}  // namespace orvelle::pulse
