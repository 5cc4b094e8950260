// The file by which a computer knows the set-up that it has joined, setup.json: written by whoever joins, read by every
// program at its start and when the file changes. It holds the computer's key, so it is its user's alone (mode 0600).
// Nothing here throws; what goes wrong is a sentence for the user.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "adapters/mqtt/JoinCode.h"

namespace orvelle::mqtt {

constexpr int UsualPort = 8883;

struct SetUpSetting {
    std::string Name;  // of the set-up
    std::string Host;  // where its broker is
    int Port = UsualPort;
    int Identity = 0;  // of this computer, 1 to LastIdentity of Topics.h
    mqtt::Key Key{};
    bool operator==(const SetUpSetting&) const = default;
};

// The file's text. Nothing for a text that is none.
std::optional<SetUpSetting> ReadSetUp(std::string_view text);
std::string WriteSetUp(const SetUpSetting& setting);

struct FoundSetUp {
    std::optional<SetUpSetting> Setting;
    std::string Sentence;  // why there is a file and no setting; "" where all is well, or where there is no file
    bool operator==(const FoundSetUp&) const = default;
};

FoundSetUp ReadSetUpFile(const std::filesystem::path& file);
// Makes the folder, too. The file is there whole or as it was, also after a loss of power. "" for success, else a
// sentence.
std::string WriteSetUpFile(const std::filesystem::path& file, const SetUpSetting& setting);
// "" for success, or where there was none.
std::string RemoveSetUpFile(const std::filesystem::path& file);

}  // namespace orvelle::mqtt
