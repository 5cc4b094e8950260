#include "adapters/store/StoreMemory.h"

namespace orvelle::store {

const StoredValue* StoreMemory::Find(StoredTable table, const std::string& place, const std::string& name) {
    if (!IsLast(table, place)) {
        StoredPlaces& places = Table(table);
        const auto names = places.find(place);
        if (names == places.end()) return nullptr;
        last = {table, place, &names->second};
    }
    const auto found = last.Names->find(name);
    return found == last.Names->end() ? nullptr : &found->second;
}

void StoreMemory::Put(StoredTable table, const std::string& place, const std::string& name, StoredValue value) {
    if (!IsLast(table, place)) last = {table, place, &Table(table)[place]};
    StoredValue& stored = (*last.Names)[name];
    if (Same(stored, value)) return;
    if (last.Before == nullptr) last.Before = &before[static_cast<std::size_t>(table)][place];
    last.Before->try_emplace(name, stored);
    stored = std::move(value);
}

std::pair<StoredPlaces::iterator, StoredPlaces::iterator> StoreMemory::SubSections(const std::string& section) {
    StoredPlaces& sections = Table(StoredTable::Setting);
    return {sections.lower_bound(section + "\\"), sections.lower_bound(section + "]")};
}

void StoreMemory::ForgetSection(const std::string& section) {
    const auto [first, end] = SubSections(section);
    for (auto place = first; place != end;) ForgetPlace(place++);
    StoredPlaces& sections = Table(StoredTable::Setting);
    if (const auto place = sections.find(section); place != sections.end()) ForgetPlace(place);
}

void StoreMemory::ForgetPlace(StoredPlaces::iterator place) {
    last = {};
    auto names = Table(StoredTable::Setting).extract(place);
    StoredPlaces& places = before[static_cast<std::size_t>(StoredTable::Setting)];
    const auto kept = places.find(names.key());
    if (kept == places.end())
        places.insert(std::move(names));
    else
        kept->second.merge(names.mapped());
}

// What is deleted and written again as it was is no change: most rows of a table of which one is edited.
StoredChanges StoreMemory::Changes() const {
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
                if (!Same(*value, old)) changes.push_back({table, &place, &name, value, &old});
            }
        }
    }
    return changes;
}

void StoreMemory::Written() {
    for (StoredPlaces& places : before) places.clear();
    last.Before = nullptr;
}

}  // namespace orvelle::store
