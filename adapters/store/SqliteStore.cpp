#include "adapters/store/SqliteStore.h"

#include <algorithm>
#include <cctype>
#include <string_view>
#include <tuple>

#include "adapters/store/StoreFile.h"

namespace orvelle::store {

namespace {

constexpr const char* NoPlace = "";  // the controls' own values stand in no section

// Numbers come in the order of their value, before other names, which come in the order of their bytes.
auto ListOrder(std::string_view name) {
    const bool isNumber = !name.empty() && std::ranges::all_of(name, [](unsigned char c) { return std::isdigit(c); });
    const std::size_t zeros = isNumber ? std::min(name.find_first_not_of('0'), name.size()) : 0;
    const std::size_t digits = isNumber ? name.size() - zeros : 0;
    return std::tuple(!isNumber, digits, name.substr(zeros), name);
}

// The sections below `section`: behind its backslash, before the next character.
std::pair<StoredPlaces::iterator, StoredPlaces::iterator> SubSections(StoredPlaces& sections,
                                                                      const std::string& section) {
    return {sections.lower_bound(section + "\\"), sections.lower_bound(section + "]")};
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
    const auto [first, end] = SubSections(sections, section);
    for (auto place = first; place != end;) Forget(StoredTable::Setting, place++);
    if (const auto place = sections.find(section); place != sections.end()) Forget(StoredTable::Setting, place);
}

void SqliteStore::OpenSettingList(const std::string& section) {
    listed.clear();
    const auto [first, end] = SubSections(Table(StoredTable::Setting), section);
    for (auto place = first; place != end; ++place) {
        const std::string below = place->first.substr(section.size() + 1);
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
    const StoredChanges changes = Changes();
    const std::string reason = changes.empty() ? "" : file->Write(changes);
    if (reason.empty()) {
        for (StoredPlaces& places : before) places.clear();
        last.Before = nullptr;
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
    Write(StoredTable::Registry, path, name, NoValue{});
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
    if (!IsLast(table, place)) {
        StoredPlaces& places = Table(table);
        const auto names = places.find(place);
        if (names == places.end()) return defaultValue;
        last = {table, place, &names->second};
    }
    const auto found = last.Names->find(name);
    if (found == last.Names->end()) return defaultValue;
    if (const auto* value = std::get_if<Value>(&found->second)) return *value;
    if (std::holds_alternative<NoValue>(found->second)) return defaultValue;
    TellOfWrongType(place, name, std::is_same_v<Value, Long> ? "a number" : "a text");
    return defaultValue;
}

void SqliteStore::Write(StoredTable table, const std::string& place, const std::string& name, StoredValue value) {
    if (!IsLast(table, place)) last = {table, place, &Table(table)[place]};
    StoredValue& stored = (*last.Names)[name];
    if (Same(stored, value)) return;
    if (file) {
        if (last.Before == nullptr) last.Before = &before[static_cast<std::size_t>(table)][place];
        last.Before->try_emplace(name, stored);
    }
    stored = std::move(value);
}

void SqliteStore::Forget(StoredTable table, StoredPlaces::iterator place) {
    last = {};
    auto names = Table(table).extract(place);
    if (!file) return;
    StoredPlaces& places = before[static_cast<std::size_t>(table)];
    const auto kept = places.find(names.key());
    if (kept == places.end())
        places.insert(std::move(names));
    else
        kept->second.merge(names.mapped());
}

// What is deleted and written again as it was is no change: most rows of a table of which one is edited.
StoredChanges SqliteStore::Changes() const {
    static const StoredValue None;
    StoredChanges changes;
    for (const StoredTable table : {StoredTable::Setting, StoredTable::Registry, StoredTable::Control}) {
        const StoredPlaces& places = values[static_cast<std::size_t>(table)];
        for (const auto& [place, names] : before[static_cast<std::size_t>(table)]) {
            const auto now = places.find(place);
            for (const auto& [name, old] : names) {
                const StoredValue* value = &None;
                if (now != places.end())
                    if (const auto found = now->second.find(name); found != now->second.end()) value = &found->second;
                if (!Same(*value, old)) changes.push_back({table, &place, &name, value});
            }
        }
    }
    return changes;
}

void SqliteStore::TellOfWrongType(const std::string& place, const std::string& name, const char* expected) {
    if (toldOf.emplace(place, name).second)
        tell("The setting \"" + name + "\" in \"" + place + "\" is not " + expected + ", so its default is used.");
}

}  // namespace orvelle::store
