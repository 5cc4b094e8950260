#include "adapters/mqtt/BrokerFiles.h"

#include <unistd.h>

#include <cstddef>

#include "adapters/mqtt/Bounds.h"
#include "adapters/mqtt/Topics.h"
#include "adapters/shared/PrivateFile.h"

namespace orvelle::mqtt {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t Longest = std::size_t{64} * 1024;
constexpr const char* AccessList = "pattern write orvelle/1/%u/#\npattern read orvelle/1/#\n";

std::string Keys(const std::map<int, Key>& keys) {
    std::string lines;
    for (const auto& [identity, key] : keys) lines += WriteIdentity(identity) + ':' + WriteKey(key) + '\n';
    return lines;
}

// Its notices name the clients that come, by which those of a removed computer are known. It takes messages of twice
// the set-up's longest, which is a directory: what is merely too long is for the receivers to refuse and count.
std::string Configuration(const fs::path& folder, int port) {
    std::string lines = "listener " + std::to_string(port) +
                        "\n"
                        "allow_anonymous false\n"
                        "use_identity_as_username true\n"
                        "psk_hint orvelle\n"
                        "psk_file " +
                        (folder / "keys").string() + "\nacl_file " + (folder / "access").string() +
                        "\n"
                        "persistence false\n"
                        "set_tcp_nodelay true\n"
                        "message_size_limit " +
                        std::to_string(2 * bounds::Directory) +
                        "\n"
                        "connection_messages true\n"
                        "log_dest stderr\n"
                        "log_timestamp false\n"
                        "log_type error\n"
                        "log_type warning\n"
                        "log_type notice\n"
                        "log_type information\n";
    // It would become another user, who may read none of these files.
    if (geteuid() == 0) lines += "user root\n";
    return lines;
}

std::string Write(const fs::path& file, const std::string& text) {
    if (ReadPrivateFile(file, Longest).Text == text) return "";
    const std::string reason = WritePrivateFile(file, text);
    return reason.empty() ? "" : "The broker's file " + file.string() + " can't be written: " + reason + ".";
}

}  // namespace

std::string WriteBrokerFiles(const fs::path& folder, int port, const std::map<int, Key>& keys) {
    if (folder.string().find('\n') != std::string::npos)
        return "A broker can't have its files in a folder whose name has several lines.";
    std::string sentence = Write(folder / "access", AccessList);
    if (sentence.empty()) sentence = Write(folder / "keys", Keys(keys));
    if (sentence.empty()) sentence = Write(folder / "mosquitto.conf", Configuration(folder, port));
    return sentence;
}

}  // namespace orvelle::mqtt
