// What a voice server of a story's or a test's own needs in a folder: its configuration, its database with the rights
// that pilots need, and the user that it runs as. Needs the package mumble-server. What answers by a sentence answers
// "" for success.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace orvelle {

class VoiceServerFiles {
public:
    // As delivered, only registered users make channels.
    enum class Rights { EverybodyMakesChannels, AsDelivered };

    // The folder is there, and somebody else's to remove.
    explicit VoiceServerFiles(std::filesystem::path inFolder) : folder(std::move(inFolder)) {}

    // The server tells nobody in the network of itself; `more` are lines of its configuration.
    std::string WriteConfiguration(const std::string& host, std::uint16_t port, const std::string& more) const;
    // Once, after the configuration. SuperUser may do everything.
    std::string MakeDatabase(const std::string& superUserPassword, Rights rights) const;
    // All files in the folder become the server's; before it is started.
    std::string GiveToServer() const;
    // The server in the foreground; it dies with whoever starts it where that is root.
    std::vector<std::string> ServerCommand() const;

private:
    std::filesystem::path Configuration() const { return folder / "configuration"; }
    std::filesystem::path Database() const { return folder / "database"; }

    std::filesystem::path folder;
};

}  // namespace orvelle
