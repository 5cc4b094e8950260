// Small text files that are their user's alone (mode 0600), since they hold keys: read whole, written whole. Called by
// whoever keeps such a file. Nothing throws; reasons are parts of a sentence for the user, as "it is no file".
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace orvelle {

struct PrivateText {
    std::optional<std::string> Text;
    std::string Reason;  // why it can't be read; "" where there is no file
};

// Takes plain files of up to `most` bytes, no links, and never waits for what is behind a name.
PrivateText ReadPrivateFile(const std::filesystem::path& file, std::size_t most);

// Makes the folder, too. The file is there whole or as it was, also after a loss of power. "" for success, else the
// reason.
std::string WritePrivateFile(const std::filesystem::path& file, std::string_view text);

// "" for success, or where there was none.
std::string RemovePrivateFile(const std::filesystem::path& file);

}  // namespace orvelle
