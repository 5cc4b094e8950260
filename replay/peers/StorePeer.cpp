#include "replay/peers/StorePeer.h"

#include <algorithm>
#include <set>
#include <utility>

namespace orvelle::replay {

namespace {

// Names that are numbers come first, by their value.
std::pair<std::size_t, std::string> PlaceInList(const std::string& name) {
    const bool isNumber = name.find_first_not_of("0123456789") == std::string::npos;
    return {isNumber ? name.size() : std::string::npos, name};
}

}  // namespace

Long StorePeer::GetSettingLong(const std::string& section, const std::string& key, Long defaultValue) {
    return Get("GetSettingLong", section, key, defaultValue);
}

std::string StorePeer::GetSettingString(const std::string& section, const std::string& key,
                                        const std::string& defaultValue) {
    return Get("GetSettingString", section, key, defaultValue);
}

void StorePeer::SaveSettingLong(const std::string& section, const std::string& key, Long value) {
    Call("SaveSettingLong", {section, key, value});
    Put(section, key, value);
}

void StorePeer::SaveSettingString(const std::string& section, const std::string& key, const std::string& value) {
    Call("SaveSettingString", {section, key, value});
    Put(section, key, value);
}

void StorePeer::DeleteSettingSection(const std::string& section) {
    Call("DeleteSettingSection", {section});
    std::erase_if(sections, [&](const auto& stored) {
        return stored.first == section || stored.first.starts_with(section + "\\");
    });
}

void StorePeer::OpenSettingList(const std::string& section) {
    Call("OpenSettingList", {section});
    const std::string start = section + "\\";
    std::set<std::string> names;
    for (const auto& stored : sections)
        if (stored.first.starts_with(start))
            names.insert(stored.first.substr(start.size(), stored.first.find('\\', start.size()) - start.size()));
    listing.assign(names.begin(), names.end());
    std::sort(listing.begin(), listing.end(),
              [](const std::string& left, const std::string& right) { return PlaceInList(left) < PlaceInList(right); });
}

Long StorePeer::SettingListCount() { return Ask("SettingListCount", {}, static_cast<Long>(listing.size())); }

bool StorePeer::SettingListItem(Long index, std::string& name) {
    const bool isThere = index >= 0 && index < static_cast<Long>(listing.size());
    const Value listed = isThere ? listing[static_cast<std::size_t>(index)] : std::string();
    const Values answer = AskAll("SettingListItem", {index}, {isThere, listed});
    name = answer[1].As<std::string>();
    return answer[0].As<bool>();
}

void StorePeer::CloseSettingList() {
    Call("CloseSettingList");
    listing.clear();
}

void StorePeer::Put(const std::string& section, const std::string& key, const Value& value) {
    Keep(sections[section].insert_or_assign(key, Kept<Value>{value}).first->second, value);
}

std::optional<Value> StorePeer::Find(const std::string& section, const std::string& key) const {
    const Kept<Value>* entry = Entry(section, key);
    return entry == nullptr ? std::nullopt : std::optional(entry->Held);
}

template <typename T>
T StorePeer::Get(const char* member, const std::string& section, const std::string& key, const T& defaultValue) {
    const Kept<Value>* entry = Entry(section, key);
    const bool isKept = entry != nullptr && entry->Held.Is<T>();
    return Ask<T>(member, {section, key, defaultValue}, isKept ? entry->Held.As<T>() : defaultValue,
                  entry == nullptr ? 0 : entry->Since);
}

const Kept<Value>* StorePeer::Entry(const std::string& section, const std::string& key) const {
    const auto stored = sections.find(section);
    if (stored == sections.end()) return nullptr;
    const auto entry = stored->second.find(key);
    return entry == stored->second.end() ? nullptr : &entry->second;
}

}  // namespace orvelle::replay
