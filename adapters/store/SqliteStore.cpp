#include "adapters/store/SqliteStore.h"

#include <algorithm>
#include <cctype>
#include <string_view>
#include <tuple>

#include "adapters/store/StoreOpening.h"

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

}  // namespace

SqliteStore::SqliteStore(EventLoop& loop, const std::filesystem::path& file, Notice tellUser)
    : SqliteStore(loop, OpenStore(file), std::move(tellUser)) {}

SqliteStore::SqliteStore(EventLoop& loop, OpenedStore opened, Notice tellUser)
    : tell(std::move(tellUser)),
      memory(std::move(opened.Values)),
      writer(loop, memory, std::move(opened.File),
             opened.Sentence.empty() ? StoreWriter::Start::Clean : StoreWriter::Start::NotClean, tell) {
    if (!opened.Sentence.empty()) tell(opened.Sentence);
    writer.Started();
}

SqliteStore::~SqliteStore() {
    if (const std::string sentence = Close(); !sentence.empty()) tell(sentence);
}

std::string SqliteStore::Close() { return writer.Close(); }

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

void SqliteStore::DeleteSettingSection(const std::string& section) { memory.ForgetSection(section); }

void SqliteStore::OpenSettingList(const std::string& section) {
    listed.clear();
    const auto [first, end] = memory.SubSections(section);
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

void SqliteStore::HandlerEnded() { writer.HandlerEnded(); }

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
    const StoredValue* found = memory.Find(table, place, name);
    if (found == nullptr || std::holds_alternative<NoValue>(*found)) return defaultValue;
    if (const auto* value = std::get_if<Value>(found)) return *value;
    TellOfWrongType(place, name, std::is_same_v<Value, Long> ? "a number" : "a text");
    return defaultValue;
}

void SqliteStore::Write(StoredTable table, const std::string& place, const std::string& name, StoredValue value) {
    memory.Put(table, place, name, std::move(value));
}

void SqliteStore::TellOfWrongType(const std::string& place, const std::string& name, const char* expected) {
    if (toldOf.emplace(place, name).second)
        tell("The setting \"" + name + "\" in \"" + place + "\" is not " + expected + ", so its default is used.");
}

}  // namespace orvelle::store
