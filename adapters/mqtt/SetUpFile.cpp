#include "adapters/mqtt/SetUpFile.h"

#include "adapters/mqtt/Bounds.h"
#include "adapters/mqtt/JsonReading.h"
#include "adapters/mqtt/JsonWriting.h"
#include "adapters/mqtt/Topics.h"
#include "adapters/shared/HostAndPort.h"
#include "adapters/shared/PrivateFile.h"

namespace orvelle::mqtt {

namespace {

constexpr Long Version = 1;
constexpr Long LastPort = 65535;

}  // namespace

std::optional<SetUpSetting> ReadSetUp(std::string_view text) {
    JsonReading reading(text);
    const Members members = reading.Object();
    SetUpSetting setting;
    members.Number("version", Version, Version);
    setting.Name = members.Text("setup");
    setting.Host = members.Text("host");
    setting.Port = members.Number("port", 1, LastPort);
    setting.Identity = members.Identity("identity");
    const std::optional<Key> key = ReadKey(members.Text("key"));
    if (setting.Name.empty() || !IsHost(setting.Host) || !key) members.Refuse();
    setting.Key = key.value_or(Key{});
    return reading.Taken(setting);
}

std::string WriteSetUp(const SetUpSetting& setting) {
    JsonWriting writing;
    writing.Number("version", Version);
    writing.Text("setup", setting.Name);
    writing.Text("host", setting.Host);
    writing.Number("port", setting.Port);
    writing.Text("identity", WriteIdentity(setting.Identity));
    writing.Text("key", WriteKey(setting.Key));
    return writing.Whole();
}

FoundSetUp ReadSetUpFile(const std::filesystem::path& file) {
    const auto [text, reason] = ReadPrivateFile(file, bounds::Payload);
    if (!text && reason.empty()) return {};
    const std::string counts = ". This computer counts as one that has joined no set-up.";
    if (!text) return {std::nullopt, "The set-up in " + file.string() + " can't be read: " + reason + counts};
    std::optional<SetUpSetting> setting = ReadSetUp(*text);
    if (!setting) return {std::nullopt, "What " + file.string() + " holds is no set-up" + counts};
    return {std::move(setting), ""};
}

std::string WriteSetUpFile(const std::filesystem::path& file, const SetUpSetting& setting) {
    const std::string reason = WritePrivateFile(file, WriteSetUp(setting));
    return reason.empty() ? "" : "The set-up can't be kept in " + file.string() + ": " + reason + ".";
}

std::string RemoveSetUpFile(const std::filesystem::path& file) {
    const std::string reason = RemovePrivateFile(file);
    return reason.empty() ? "" : "The set-up in " + file.string() + " can't be removed: " + reason + ".";
}

}  // namespace orvelle::mqtt
