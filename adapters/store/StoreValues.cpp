#include "adapters/store/StoreValues.h"

#include <string>
#include <utility>

#include "adapters/store/StoreFormat.h"
#include "adapters/store/StoreReader.h"

namespace orvelle::store {

namespace {

// They come in the order of the key, so each belongs to the place of the one before or, mostly, behind all others.
class Placing {
public:
    explicit Placing(StoredPlaces& storedPlaces) : places(storedPlaces), names(places.end()) {}
    void Put(std::string place, std::string name, StoredValue value) {
        if (names == places.end() || names->first != place) names = places.try_emplace(places.end(), std::move(place));
        names->second.insert_or_assign(names->second.end(), std::move(name), std::move(value));
    }

private:
    StoredPlaces& places;
    StoredPlaces::iterator names;
};

void ReadRows(const Connection& file, StoredTable table, FoundStore& found) {
    const auto index = static_cast<std::size_t>(table);
    Placing placing(found.Values[index]);
    Check digest = 0;
    Statement rows(file, std::string("SELECT place, name, value, hash FROM ") + StoreTableNames[index]);
    while (rows.Step()) {
        std::string place = rows.Bytes(0);
        std::string name = rows.Bytes(1);
        StoredValue value = rows.Value(2);
        const Check check = RowCheck(table, place, name, value);
        if (rows.IsBytes(0) && rows.IsBytes(1) && rows.IsAsBound(0) && rows.IsAsBound(1) && rows.IsAsBound(2) &&
            rows.Wide(3) == check) {
            digest ^= check;
            placing.Put(std::move(place), std::move(name), std::move(value));
        } else {
            found.IsTableFaulty[index] = true;
        }
    }
    if (found.IsStateFaulty) return;
    found.Missing[index] = digest ^ found.State.Digests[index];
    if (found.Missing[index] != 0) found.IsTableFaulty[index] = true;
}

void ReadRowsWithoutChecks(const Connection& file, StoredTable table, FoundStore& found) {
    const auto index = static_cast<std::size_t>(table);
    Placing placing(found.Values[index]);
    Statement rows(file, std::string("SELECT place, name, value FROM ") + StoreTableNames[index]);
    while (rows.Step()) {
        if (rows.IsBytes(0) && rows.IsBytes(1))
            placing.Put(rows.Bytes(0), rows.Bytes(1), rows.Value(2));
        else
            found.IsTableFaulty[index] = true;
    }
}

void ReadState(const Connection& file, FoundStore& found) {
    Statement row(file, "SELECT store, change, setting, registry, control, hash FROM state WHERE rowid = 1");
    found.IsStateFaulty = !row.Step();
    if (found.IsStateFaulty) return;
    found.State = {row.Wide(0), row.Wide(1), {row.Wide(2), row.Wide(3), row.Wide(4)}};
    found.IsStateFaulty = row.Wide(5) != found.State.Seal();
}

}  // namespace

void ReadStoreValues(const Connection& file, Long version, FoundStore& found) {
    if (version != VersionWithoutChecks) ReadState(file, found);
    for (const StoredTable table : {StoredTable::Setting, StoredTable::Registry, StoredTable::Control})
        if (version == VersionWithoutChecks)
            ReadRowsWithoutChecks(file, table, found);
        else
            ReadRows(file, table, found);
}

}  // namespace orvelle::store
