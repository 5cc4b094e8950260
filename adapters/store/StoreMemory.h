// The store's values in memory, and which of them differ from the file. Called by the store, for each read and write of
// the panel, and by its writer. Nothing fails.
#pragma once

#include <string>
#include <utility>

#include "adapters/store/StoredValue.h"

namespace orvelle::store {

class StoreMemory {
public:
    // `read` is what the file holds.
    explicit StoreMemory(StoredTables read) : values(std::move(read)) {}
    StoreMemory(const StoreMemory&) = delete;
    StoreMemory& operator=(const StoreMemory&) = delete;

    // Null where there is none.
    const StoredValue* Find(StoredTable table, const std::string& place, const std::string& name);
    void Put(StoredTable table, const std::string& place, const std::string& name, StoredValue value);

    // The sections below `section`: behind its backslash, before the next character.
    std::pair<StoredPlaces::iterator, StoredPlaces::iterator> SubSections(const std::string& section);
    void ForgetSection(const std::string& section);  // with those below it

    const StoredTables& Values() const { return values; }
    // What is to be written for the file to hold the same; good until the next change.
    StoredChanges Changes() const;
    // The file holds the same now.
    void Written();

private:
    // The place that was used last: a row's values are read and written one after another.
    struct LastPlace {
        StoredTable Table = StoredTable::Setting;
        std::string Place;
        StoredNames* Names = nullptr;   // null: none was used yet, or it is gone
        StoredNames* Before = nullptr;  // in `before`; null until the first write there
    };

    bool IsLast(StoredTable table, const std::string& place) const {
        return last.Names != nullptr && last.Table == table && last.Place == place;
    }
    StoredPlaces& Table(StoredTable table) { return values[static_cast<std::size_t>(table)]; }
    void ForgetPlace(StoredPlaces::iterator place);

    StoredTables values;
    StoredTables before;  // what the file holds of each value that was put or forgotten since it was last written
    LastPlace last;
};

}  // namespace orvelle::store
