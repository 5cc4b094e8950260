// Files that people write or other programs keep, read whole: aircraft, FlightGear's options. Links are followed.
// Nothing throws.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace orvelle::simulators {

struct PlainText {
    std::optional<std::string> Text;  // none where there is no file, or it can't be read
    std::string Sentence;             // why it can't be read
};

// Plain files of up to `most` bytes alone.
PlainText ReadPlainFile(const std::filesystem::path& file, std::uintmax_t most);

// "FILE can't be read: it is too long."
std::string WhyNot(const std::filesystem::path& file, const char* read, const std::string& reason);

}  // namespace orvelle::simulators
