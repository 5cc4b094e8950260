#include "adapters/mqtt/OwnSetUp.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "adapters/mqtt/Bounds.h"
#include "adapters/mqtt/BrokerFiles.h"
#include "adapters/mqtt/JsonReading.h"
#include "adapters/mqtt/JsonWriting.h"
#include "adapters/mqtt/PrivateFile.h"
#include "adapters/mqtt/Topics.h"

namespace orvelle::mqtt {

namespace {

namespace fs = std::filesystem;

constexpr Long Version = 1;
constexpr Long LastPort = 65535;
constexpr int ThisComputer = 1;

// One change at a time: held from the reading of what is there to the writing of what shall be.
class ChangeLock {
public:
    explicit ChangeLock(const fs::path& folder) {
        if (!Take(folder))
            sentence =
                "The folder " + folder.string() + " can't be written: " + std::generic_category().message(errno) + ".";
    }
    ChangeLock(const ChangeLock&) = delete;
    ChangeLock& operator=(const ChangeLock&) = delete;
    ~ChangeLock() {
        if (descriptor >= 0) close(descriptor);
    }

    const std::string& Sentence() const { return sentence; }

private:
    bool Take(const fs::path& folder) {
        std::error_code error;
        fs::create_directories(folder.parent_path(), error);
        if (mkdir(folder.c_str(), S_IRWXU) != 0 && errno != EEXIST) return false;
        // Also where it was made under a strange umask.
        if (chmod(folder.c_str(), S_IRWXU) != 0) return false;
        descriptor = open((folder / "changes.lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
        if (descriptor < 0) return false;
        while (flock(descriptor, LOCK_EX) != 0)
            if (errno != EINTR) return false;
        return true;
    }

    int descriptor = -1;
    std::string sentence;
};

std::optional<Key> NewKey() {
    Key key{};
    const bool isWhole = getrandom(key.data(), key.size(), 0) == static_cast<ssize_t>(key.size());
    return isWhole ? std::optional(key) : std::nullopt;
}

constexpr const char* NoRandomness = "The system gives no random numbers for a key.";
constexpr const char* NoSetUp = "This computer has made no set-up yet; orvelle-sim makes one when it is started.";

}  // namespace

std::optional<OwnSetting> ReadOwnSetting(std::string_view text) {
    JsonReading reading(text);
    const Members members = reading.Object();
    members.Number("version", Version, Version);
    OwnSetting setting{.Name = members.Text("setup"), .Port = members.Number("port", 1, LastPort), .Keys = {}};
    for (const auto& [identity, text] : members.IndexedTexts("keys")) {
        const std::optional<Key> key = ReadKey(text);
        if (!key || identity < 1 || identity > LastIdentity)
            members.Refuse();
        else
            setting.Keys.emplace(identity, *key);
    }
    if (setting.Name.empty() || !setting.Keys.contains(ThisComputer)) members.Refuse();
    return reading.Taken(setting);
}

std::string WriteOwnSetting(const OwnSetting& setting) {
    std::map<Long, std::string> keys;
    for (const auto& [identity, key] : setting.Keys) keys.emplace(identity, WriteKey(key));
    JsonWriting writing;
    writing.Number("version", Version);
    writing.Text("setup", setting.Name);
    writing.Number("port", setting.Port);
    writing.Indexed("keys", keys);
    return writing.Whole();
}

OwnSetUp::OwnSetUp(const fs::path& data)
    : folder(fs::absolute(data) / "broker"), panelFile(fs::absolute(data) / "setup.json") {}

OwnSetUp::Outcome OwnSetUp::Read() const {
    const fs::path file = File();
    const auto [text, reason] = ReadPrivateFile(file, bounds::Payload);
    if (!text && reason.empty()) return {};
    if (!text) return {std::nullopt, "The set-up in " + file.string() + " can't be read: " + reason + "."};
    std::optional<OwnSetting> setting = ReadOwnSetting(*text);
    if (!setting)
        return {std::nullopt, "What " + file.string() +
                                  " holds is no set-up. It may be the only copy of the keys of all computers, so "
                                  "it is left as it is; move it away to make a new set-up."};
    return {std::move(setting), ""};
}

OwnSetUp::Outcome OwnSetUp::ReadOrMake(const std::string& name, int port) const {
    const ChangeLock lock(folder);
    if (!lock.Sentence().empty()) return {std::nullopt, lock.Sentence()};
    Outcome found = Read();
    if (!found.Sentence.empty()) return found;
    if (!found.Setting) {
        const std::optional<Key> key = NewKey();
        if (!key) return {std::nullopt, NoRandomness};
        found.Setting = OwnSetting{.Name = WrittenText(name), .Port = UsualPort, .Keys = {{ThisComputer, *key}}};
    }
    if (port != 0) found.Setting->Port = port;
    const std::string sentence = Keep(*found.Setting);
    return sentence.empty() ? found : Outcome{std::nullopt, sentence};
}

OwnSetUp::Added OwnSetUp::Add() const {
    const ChangeLock lock(folder);
    if (!lock.Sentence().empty()) return {std::nullopt, lock.Sentence()};
    auto [setting, sentence] = Read();
    if (!setting) return {std::nullopt, sentence.empty() ? NoSetUp : sentence};
    int number = ThisComputer + 1;
    while (setting->Keys.contains(number)) ++number;
    if (number > LastIdentity)
        return {std::nullopt, "The set-up is full: it has " + std::to_string(LastIdentity) + " computers already."};
    const std::optional<Key> key = NewKey();
    if (!key) return {std::nullopt, NoRandomness};
    setting->Keys.emplace(number, *key);
    sentence = Keep(*setting);
    if (!sentence.empty()) return {std::nullopt, sentence};
    return {JoinCode{number, *key}, ""};
}

std::string OwnSetUp::Remove(int identity) const {
    if (identity == ThisComputer) return "c01 is the computer that made the set-up; it can't be removed from it.";
    const ChangeLock lock(folder);
    if (!lock.Sentence().empty()) return lock.Sentence();
    auto [setting, sentence] = Read();
    if (!setting) return sentence.empty() ? NoSetUp : sentence;
    if (setting->Keys.erase(identity) == 0) return "No computer of the set-up is " + WriteIdentity(identity) + ".";
    return Keep(*setting);
}

// The set-up's own file last: whoever is woken by it lets the broker read its files again. Those can be made again of
// what is kept.
std::string OwnSetUp::Keep(const OwnSetting& setting) const {
    const std::string text = WriteOwnSetting(setting);
    const fs::path file = File();
    std::string sentence = WriteBrokerFiles(folder, setting.Port, setting.Keys);
    if (sentence.empty() && ReadPrivateFile(file, bounds::Payload).Text != text)
        if (const std::string reason = WritePrivateFile(file, text); !reason.empty())
            sentence = "The set-up can't be kept in " + file.string() + ": " + reason + ".";
    if (!sentence.empty())
        if (const auto kept = Read().Setting) WriteBrokerFiles(folder, kept->Port, kept->Keys);
    return sentence;
}

std::string OwnSetUp::JoinThisComputer(const OwnSetting& setting, const std::string& host, int port) const {
    const FoundSetUp found = ReadSetUpFile(panelFile);
    if (!found.Sentence.empty()) return found.Sentence + " Remove that file, or leave the set-up, first.";
    if (found.Setting && !OfThisComputer(setting))
        return "This computer belongs to the set-up \"" + found.Setting->Name + "\" already (" + panelFile.string() +
               "); it must leave that one before it can have one of its own.";
    const SetUpSetting wanted{setting.Name, host, port, ThisComputer, setting.Keys.at(ThisComputer)};
    return found.Setting == wanted ? "" : WriteSetUpFile(panelFile, wanted);
}

std::optional<SetUpSetting> OwnSetUp::OfThisComputer(const OwnSetting& setting) const {
    std::optional<SetUpSetting> found = ReadSetUpFile(panelFile).Setting;
    if (!found || found->Identity != ThisComputer || found->Key != setting.Keys.at(ThisComputer)) return std::nullopt;
    return found;
}

}  // namespace orvelle::mqtt
