#include "adapters/pulse/WaveFile.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string_view>

namespace orvelle::pulse {

namespace {

constexpr std::uintmax_t LongestFile = 8 << 20;
constexpr std::size_t HeadBytes = 12;
constexpr std::size_t ChunkHeadBytes = 8;
constexpr std::size_t FormatBytes = 16;
constexpr std::uint32_t Pcm = 1;
constexpr std::uint32_t SampleBits = 16;

// A number of the file, its least byte first.
std::uint32_t NumberAt(std::string_view bytes, std::size_t place, std::size_t size) {
    std::uint32_t number = 0;
    for (std::size_t byte = size; byte > 0; --byte)
        number = number << 8 | static_cast<unsigned char>(bytes[place + byte - 1]);
    return number;
}

std::optional<WaveFile> ReadWave(std::string_view bytes) {
    if (bytes.size() < HeadBytes || !bytes.starts_with("RIFF") || bytes.substr(8, 4) != "WAVE") return std::nullopt;
    bytes.remove_prefix(HeadBytes);
    WaveFile wave;
    while (bytes.size() >= ChunkHeadBytes) {
        const std::string_view kind = bytes.substr(0, 4);
        const std::size_t size = NumberAt(bytes, 4, 4);
        const std::string_view chunk = bytes.substr(ChunkHeadBytes, size);
        if (kind == "fmt ") {
            if (chunk.size() < FormatBytes || NumberAt(chunk, 0, 2) != Pcm || NumberAt(chunk, 14, 2) != SampleBits)
                return std::nullopt;
            wave.Channels = static_cast<std::uint8_t>(std::min(NumberAt(chunk, 2, 2), 3U));
            wave.Rate = NumberAt(chunk, 4, 4);
            if (wave.Channels < 1 || wave.Channels > 2 || wave.Rate < 8000 || wave.Rate > 48000) return std::nullopt;
        } else if (kind == "data") {
            if (wave.Channels == 0) return std::nullopt;
            const std::size_t frame = std::size_t{wave.Channels} * SampleBits / 8;
            wave.Samples = chunk.substr(0, chunk.size() / frame * frame);
            return wave.Samples.empty() ? std::nullopt : std::optional(wave);
        }
        bytes.remove_prefix(std::min(bytes.size(), ChunkHeadBytes + size + size % 2));
    }
    return std::nullopt;
}

}  // namespace

std::optional<WaveFile> ReadWaveFile(const std::filesystem::path& path) {
    std::error_code failed;
    if (!std::filesystem::is_regular_file(path, failed)) return std::nullopt;
    if (std::filesystem::file_size(path, failed) > LongestFile || failed) return std::nullopt;
    std::ifstream file(path, std::ios::binary);
    return ReadWave(std::string(std::istreambuf_iterator<char>(file), {}));
}

std::optional<std::filesystem::path> FileInFolder(const std::filesystem::path& folder, std::string name) {
    std::ranges::replace(name, '\\', '/');
    if (name.empty() || name.front() == '/' || name.find('\0') != std::string::npos) return std::nullopt;
    std::error_code failed;
    const auto inside = std::filesystem::canonical(folder, failed);
    if (failed) return std::nullopt;
    auto file = std::filesystem::canonical(inside / name, failed);
    if (failed) return std::nullopt;
    const auto [last, rest] = std::ranges::mismatch(inside, file);
    return last == inside.end() ? std::optional(std::move(file)) : std::nullopt;
}

}  // namespace orvelle::pulse
