#include "adapters/mqtt/OwnSetUp.h"

#include <sys/random.h>

#include <sstream>
#include <utility>

#include "adapters/mqtt/PrivateFile.h"
#include "adapters/mqtt/Topics.h"
#include "platform/ServerNames.h"

namespace orvelle::mqtt {

namespace {

constexpr int OwnIdentity = 1;
constexpr std::size_t LongestKeys = 64 * 1024;

constexpr const char* AccessList =
    "pattern write orvelle/1/%u/#\n"
    "pattern read orvelle/1/#\n";

std::optional<Key> NewKey() {
    Key key{};
    if (getrandom(key.data(), key.size(), 0) != static_cast<ssize_t>(key.size())) return std::nullopt;
    return key;
}

// A line for each computer, as the broker takes them: "c07:000102030405060708090a0b0c".
std::optional<ComputerKeys> ReadKeys(const std::string& text) {
    ComputerKeys keys;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        const std::size_t colon = line.find(':');
        if (colon == std::string::npos) return std::nullopt;
        const auto identity = ReadIdentity(line.substr(0, colon));
        const auto key = ReadKey(line.substr(colon + 1));
        if (!identity || !key || !keys.emplace(*identity, *key).second) return std::nullopt;
    }
    if (!keys.contains(OwnIdentity)) return std::nullopt;
    return keys;
}

std::string Unwritable(const std::filesystem::path& file, const std::string& reason) {
    return reason.empty() ? "" : "The set-up can't be kept in " + file.string() + ": " + reason + ".";
}

}  // namespace

OwnSetUp::Found OwnSetUp::Read() const {
    const auto [text, reason] = ReadPrivateFile(KeysFile(), LongestKeys);
    if (!text && reason.empty()) return {};
    if (!text)
        return {std::nullopt, "The computers' keys in " + KeysFile().string() + " can't be read: " + reason + "."};
    std::optional<ComputerKeys> keys = ReadKeys(*text);
    if (!keys) return {std::nullopt, "What " + KeysFile().string() + " holds are no keys. It was left as it is."};
    return {std::move(keys), ""};
}

std::string OwnSetUp::Make(const std::string& name, int port) const {
    Found found = Read();
    if (!found.Sentence.empty()) return found.Sentence;
    if (!found.Keys) {
        const auto key = NewKey();
        if (!key) return "The system gives no random numbers now, so no set-up can be made.";
        found.Keys = ComputerKeys{{OwnIdentity, *key}};
        if (const std::string sentence = WriteKeys(*found.Keys); !sentence.empty()) return sentence;
    }
    const std::filesystem::path access = LockFolder() / "access";
    if (const std::string reason = WritePrivateFile(access, AccessList); !reason.empty())
        return Unwritable(access, reason);
    std::ostringstream configuration;
    configuration << "listener " << port << "\nset_tcp_nodelay true\n"
                  << "allow_anonymous false\nuse_identity_as_username true\npsk_hint orvelle\n"
                  << "psk_file " << KeysFile().string() << "\nacl_file " << access.string() << "\n"
                  << "persistence false\nmessage_size_limit 65536\n"
                  << "log_dest stderr\nlog_type error\nlog_type warning\n"
                  << "user root\n";  // where root runs it: nobody else could read the keys
    if (const std::string reason = WritePrivateFile(Configuration(), configuration.str()); !reason.empty())
        return Unwritable(Configuration(), reason);
    return WriteSetUpFile(SetUpFile(), {name, LocalHost, port, OwnIdentity, found.Keys->at(OwnIdentity)});
}

std::optional<JoinCode> OwnSetUp::Add(std::string& sentence) const {
    Found found = Read();
    sentence = found.Keys ? "" : found.Sentence.empty() ? "This computer has made no set-up yet." : found.Sentence;
    if (!found.Keys) return std::nullopt;
    int number = OwnIdentity;
    while (found.Keys->contains(number)) ++number;
    const auto key = NewKey();
    if (number > LastIdentity) sentence = "The set-up is full: it has 99 computers.";
    if (!key) sentence = "The system gives no random numbers now, so no key can be made.";
    if (!sentence.empty()) return std::nullopt;
    found.Keys->emplace(number, *key);
    sentence = WriteKeys(*found.Keys);
    if (!sentence.empty()) return std::nullopt;
    return JoinCode{number, *key};
}

std::string OwnSetUp::Remove(int identity) const {
    Found found = Read();
    if (!found.Keys) return found.Sentence.empty() ? "This computer has made no set-up yet." : found.Sentence;
    if (identity == OwnIdentity) return "This computer brings the broker, so it can't be removed from the set-up.";
    if (found.Keys->erase(identity) == 0) return "There is no computer " + WriteIdentity(identity) + " in the set-up.";
    return WriteKeys(*found.Keys);
}

std::string OwnSetUp::WriteKeys(const ComputerKeys& keys) const {
    std::string text;
    for (const auto& [identity, key] : keys) text += WriteIdentity(identity) + ":" + WriteKey(key) + "\n";
    return Unwritable(KeysFile(), WritePrivateFile(KeysFile(), text));
}

}  // namespace orvelle::mqtt
