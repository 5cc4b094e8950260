// A file of sound, and where such files lie. Read are files of PCM with 16 bits, one or two channels, 8 to 48 kHz, of
// at most 8 MiB; anything else, a damaged file, a device or a pipe is none, without waiting for it. Called by the
// player.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace orvelle::pulse {

struct WaveFile {
    std::uint32_t Rate = 0;  // samples a second
    std::uint8_t Channels = 0;
    std::string Samples;  // whole frames
};

std::optional<WaveFile> ReadWaveFile(const std::filesystem::path& path);

// The file that a name means in a folder: both slashes part folders, upper and lower case count. None for a name that
// leads out of the folder, also by a link.
std::optional<std::filesystem::path> FileInFolder(const std::filesystem::path& folder, std::string name);

}  // namespace orvelle::pulse
