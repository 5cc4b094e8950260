#include "platform/embedded/Store.h"

#include <algorithm>
#include <cctype>
#include <tuple>

#include "platform/embedded/StoreFile.h"

namespace orvelle {

namespace {

constexpr const char* NoPlace = "";  // the controls' own values stand in no section

// Numbers come in the order of their value, before other names, which come in the order of their bytes.
auto ListOrder(const std::string& name) {
    const bool isNumber = !name.empty() && std::ranges::all_of(name, [](unsigned char c) { return std::isdigit(c); });
    const std::size_t zeros = isNumber ? std::min(name.find_first_not_of('0'), name.size()) : 0;
    const std::size_t digits = isNumber ? name.size() - zeros : 0;
    return std::tuple(!isNumber, digits, name.substr(zeros), name);
}

}  // namespace

SqliteStore::SqliteStore(const std::filesystem::path& storeFile, Notice tellUser) : tell(std::move(tellUser)) {
    StoreFile::Opened opened = StoreFile::Open(storeFile);
    file = std::move(opened.File);
    values = std::move(opened.Values);
    fileName = storeFile.string();
    if (!opened.Sentence.empty()) tell(opened.Sentence);
}

SqliteStore::~SqliteStore() { HandlerEnded(); }

Long SqliteStore::GetSettingLong(const std::string& section, const std::string& key, Long defaultValue) {
    return Read(StoredTable::Setting, section, key, defaultValue);
}

std::string SqliteStore::GetSettingString(const std::string& section, const std::string& key,
                                          const std::string& defaultValue) {
    return Read(StoredTable::Setting, section, key, defaultValue);
}

void SqliteStore::SaveSettingLong(const std::string& section, const std::string& key, Long value) {
    Write(StoredTable::Setting, section, key, value);
}

void SqliteStore::SaveSettingString(const std::string& section, const std::string& key, const std::string& value) {
    Write(StoredTable::Setting, section, key, value);
}

void SqliteStore::DeleteSettingSection(const std::string& section) {
    StoredPlaces& sections = Table(StoredTable::Setting);
    const std::size_t before = sections.size();
    const auto [first, behind] = SubSections(section);
    sections.erase(section);
    sections.erase(sections.lower_bound(first), sections.lower_bound(behind));
    if (sections.size() == before) return;
    AddWrite({StoredWrite::Kind::DeleteSection, StoredTable::Setting, section, "", {}});
}

void SqliteStore::OpenSettingList(const std::string& section) {
    listed.clear();
    const StoredPlaces& sections = Table(StoredTable::Setting);
    const auto [first, behind] = SubSections(section);
    const auto end = sections.lower_bound(behind);
    for (auto place = sections.lower_bound(first); place != end; ++place) {
        const std::string below = place->first.substr(first.size());
        const std::string name = below.substr(0, below.find('\\'));
        if (listed.empty() || listed.back() != name) listed.push_back(name);
    }
    std::ranges::sort(listed, {}, ListOrder);
    listed.erase(std::unique(listed.begin(), listed.end()), listed.end());
}

Long SqliteStore::SettingListCount() { return static_cast<Long>(listed.size()); }

bool SqliteStore::SettingListItem(Long index, std::string& name) {
    const bool exists = index >= 0 && static_cast<std::size_t>(index) < listed.size();
    name = exists ? listed[static_cast<std::size_t>(index)] : "";
    return exists;
}

void SqliteStore::CloseSettingList() { listed.clear(); }

// What can't be written now is tried again with the next handler's writes; until then it is kept in memory.
void SqliteStore::HandlerEnded() {
    if (waiting.empty()) return;
    const std::string reason = file->Write(waiting);
    if (reason.empty()) {
        waiting.clear();
    } else if (!toldOfFailure) {
        toldOfFailure = true;
        tell("The settings file \"" + fileName + "\" could not be written (" + reason +
             "). Changes are kept in memory and written as soon as that is possible again.");
    }
}

// One root is in use, so the paths alone tell the values apart.
void SqliteStore::WriteRegistryString(Long, const std::string& path, const std::string& name,
                                      const std::string& value) {
    Write(StoredTable::Registry, path, name, value);
}

std::string SqliteStore::ReadRegistryString(Long, const std::string& path, const std::string& name,
                                            const std::string& defaultValue) {
    return Read(StoredTable::Registry, path, name, defaultValue);
}

void SqliteStore::DeleteRegistryValue(Long, const std::string& path, const std::string& name) {
    StoredPlaces& paths = Table(StoredTable::Registry);
    const auto found = paths.find(path);
    if (found == paths.end() || found->second.erase(name) == 0) return;
    AddWrite({StoredWrite::Kind::Delete, StoredTable::Registry, path, name, {}});
}

void SqliteStore::WriteRegistryLong(Long, const std::string& path, const std::string& name, Long value) {
    Write(StoredTable::Registry, path, name, value);
}

Long SqliteStore::ReadRegistryLong(Long, const std::string& path, const std::string& name, Long defaultValue) {
    return Read(StoredTable::Registry, path, name, defaultValue);
}

std::string SqliteStore::ReadRegistryDefault(const std::string& path, const std::string& name,
                                             const std::string& defaultValue) {
    return Read(StoredTable::Registry, path, name, defaultValue);
}

std::string SqliteStore::GetControlValue(const std::string& name, const std::string& defaultValue) {
    return Read(StoredTable::Control, NoPlace, name, defaultValue);
}

void SqliteStore::SetControlValue(const std::string& name, const std::string& value) {
    Write(StoredTable::Control, NoPlace, name, value);
}

template <typename Value>
Value SqliteStore::Read(StoredTable table, const std::string& place, const std::string& name,
                        const Value& defaultValue) {
    const StoredPlaces& places = Table(table);
    const auto names = places.find(place);
    if (names == places.end()) return defaultValue;
    const auto found = names->second.find(name);
    if (found == names->second.end()) return defaultValue;
    if (const auto* value = std::get_if<Value>(&found->second)) return *value;
    TellOfWrongType(place, name, std::is_same_v<Value, Long> ? "a number" : "a text");
    return defaultValue;
}

// A value that stands already is not written again, so that a start leaves the file alone.
void SqliteStore::Write(StoredTable table, const std::string& place, const std::string& name, StoredValue value) {
    StoredValue& stored = Table(table)[place][name];
    if (stored == value) return;
    stored = value;
    AddWrite({StoredWrite::Kind::Put, table, place, name, std::move(value)});
}

void SqliteStore::AddWrite(StoredWrite write) {
    if (file) waiting.push_back(std::move(write));
}

void SqliteStore::TellOfWrongType(const std::string& place, const std::string& name, const char* expected) {
    if (toldOf.emplace(place, name).second)
        tell("The setting \"" + name + "\" in \"" + place + "\" is not " + expected + ", so its default is used.");
}

}  // namespace orvelle
