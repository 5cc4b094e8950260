#include "adapters/mqtt/OwnSetUp.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/random.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

#include "adapters/mqtt/Bounds.h"
#include "adapters/mqtt/BrokerFiles.h"
#include "adapters/mqtt/JsonReading.h"
#include "adapters/mqtt/JsonWriting.h"
#include "adapters/mqtt/Topics.h"
#include "adapters/shared/FileDescriptor.h"
#include "adapters/shared/PrivateFile.h"
#include "adapters/shared/Utf8.h"
#include "adapters/shared/WholeFile.h"

namespace orvelle::mqtt {

namespace {

namespace fs = std::filesystem;

constexpr Long Version = 1;
constexpr Long LastPort = 65535;
constexpr int ThisComputer = 1;
constexpr std::size_t LongestName = 63;  // bytes that DNS-SD carries
constexpr const char* UsualName = "OrvelleCP";

// One change at a time: held from the reading of what is there to the writing of what shall be.
class ChangeLock {
public:
    explicit ChangeLock(const OwnSetUp& setUp) : sentence(setUp.MakeFolder()) {
        if (sentence.empty() && !Take(setUp.Folder() / "changes.lock"))
            sentence = "The folder " + setUp.Folder().string() +
                       " can't be written: " + std::generic_category().message(errno) + ".";
    }

    const std::string& Sentence() const { return sentence; }

private:
    bool Take(const fs::path& path) {
        file = FileDescriptor(open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
        if (!file) return false;
        while (flock(file.Number(), LOCK_EX) != 0)
            if (errno != EINTR) return false;
        return true;
    }

    std::string sentence;
    FileDescriptor file;
};

std::optional<Key> NewKey() {
    Key key{};
    const bool isWhole = getrandom(key.data(), key.size(), 0) == static_cast<ssize_t>(key.size());
    return isWhole ? std::optional(key) : std::nullopt;
}

constexpr const char* NoRandomness = "The system gives no random numbers for a key.";
constexpr const char* NoSetUp = "This computer has made no set-up yet; orvelle-sim makes one when it is started.";

}  // namespace

bool IsSetUpName(std::string_view text) {
    const auto isControl = [](char each) { return static_cast<unsigned char>(each) < ' ' || each == '\x7F'; };
    return text.size() <= LongestName && text.find_first_not_of(' ') != text.npos &&
           std::ranges::none_of(text, isControl) && IsUtf8(text);
}

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

OwnSetUp::Outcome OwnSetUp::ReadOrMake(const std::string& firstName, int port) const {
    const ChangeLock lock(*this);
    if (!lock.Sentence().empty()) return {std::nullopt, lock.Sentence()};
    Outcome found = Read();
    if (!found.Sentence.empty()) return found;
    if (!found.Setting) {
        const std::optional<Key> key = NewKey();
        if (!key) return {std::nullopt, NoRandomness};
        std::string name = WrittenText(firstName);
        if (!IsSetUpName(name)) name = UsualName;
        found.Setting = OwnSetting{.Name = std::move(name), .Port = UsualPort, .Keys = {{ThisComputer, *key}}};
    }
    if (port != 0) found.Setting->Port = port;
    const std::string sentence = Keep(*found.Setting);
    return sentence.empty() ? found : Outcome{std::nullopt, sentence};
}

std::string OwnSetUp::Rename(const std::string& name) const {
    if (!IsSetUpName(name)) return "A set-up's name has 1 to 63 bytes and no control characters.";
    const ChangeLock lock(*this);
    if (!lock.Sentence().empty()) return lock.Sentence();
    auto [setting, sentence] = Read();
    if (!setting) return sentence.empty() ? NoSetUp : sentence;
    setting->Name = name;
    sentence = Keep(*setting);
    const std::optional<SetUpSetting> own = OfThisComputer(*setting);
    return sentence.empty() && own ? JoinThisComputer(*setting, own->Host, own->Port) : sentence;
}

OwnSetUp::Added OwnSetUp::Add() const {
    const ChangeLock lock(*this);
    if (!lock.Sentence().empty()) return {std::nullopt, lock.Sentence()};
    auto [setting, sentence] = Read();
    if (!setting) return {std::nullopt, sentence.empty() ? NoSetUp : sentence};
    int number = ThisComputer + 1;
    while (setting->Keys.contains(number)) ++number;
    if (number > LastIdentity)
        return {std::nullopt, "The set-up is full: it has " + std::to_string(LastIdentity) +
                                  " computers already; remove one to add another."};
    const std::optional<Key> key = NewKey();
    if (!key) return {std::nullopt, NoRandomness};
    setting->Keys.emplace(number, *key);
    sentence = Keep(*setting);
    if (!sentence.empty()) return {std::nullopt, sentence};
    return {JoinCode{number, *key}, ""};
}

std::string OwnSetUp::Remove(int identity) const {
    if (identity == ThisComputer) return "c01 is the computer that made the set-up; it can't be removed from it.";
    const ChangeLock lock(*this);
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

std::string OwnSetUp::JoinThisComputer(const OwnSetting& setting, const std::string& host, int port,
                                       OtherSetUp other) const {
    const FoundSetUp found = ReadSetUpFile(panelFile);
    const bool isElsewhere = found.Setting && !OfThisComputer(setting);
    if (other == OtherSetUp::Stays && !found.Sentence.empty())
        return found.Sentence + " Remove that file, or leave the set-up, first.";
    if (other == OtherSetUp::Stays && isElsewhere)
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

std::optional<SetUpSetting> OwnSetUp::JoinedElsewhere() const {
    const Outcome own = Read();
    // Which set-up the file belongs to can't be known then.
    if (!own.Sentence.empty() || (own.Setting && OfThisComputer(*own.Setting))) return std::nullopt;
    return ReadSetUpFile(panelFile).Setting;
}

std::string OwnSetUp::MakeFolder() const {
    std::error_code error = MakeOwnFolder(folder);
    // Also where it was made under a strange umask.
    if (!error && chmod(folder.c_str(), S_IRWXU) != 0) error = {errno, std::generic_category()};
    return error ? "The folder " + folder.string() + " can't be written: " + error.message() + "." : "";
}

}  // namespace orvelle::mqtt
