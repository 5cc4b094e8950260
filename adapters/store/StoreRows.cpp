#include "adapters/store/StoreRows.h"

#include "adapters/store/StoreFormat.h"

namespace orvelle::store {

StoreRows::StoreRows(const Connection& file)
    : putState(file,
               "INSERT OR REPLACE INTO state (rowid, store, change, setting, registry, control, hash)"
               " VALUES (1, ?1, ?2, ?3, ?4, ?5, ?6)") {
    for (const std::string table : StoreTableNames)
        tables.push_back({{file, "INSERT INTO " + table +
                                     " (place, name, value, hash) VALUES (?1, ?2, ?3, ?4)"
                                     " ON CONFLICT DO UPDATE SET value = excluded.value, hash = excluded.hash"},
                          {file, "DELETE FROM " + table + " WHERE place = ?1 AND name = ?2"}});
}

void StoreRows::Write(StoredTable table, const std::string& place, const std::string& name, const StoredValue& value) {
    TableStatements& statements = tables[static_cast<std::size_t>(table)];
    if (std::holds_alternative<NoValue>(value))
        statements.Delete.Bind(1, place).Bind(2, name).Finish();
    else
        statements.Put.Bind(1, place)
            .Bind(2, name)
            .Bind(3, value)
            .BindWide(4, RowCheck(table, place, name, value))
            .Finish();
}

void StoreRows::Write(const StoreState& state) {
    putState.BindWide(1, state.Store).BindWide(2, state.Change).BindWide(6, state.Seal());
    for (std::size_t table = 0; table < StoredTableCount; ++table)
        putState.BindWide(3 + static_cast<int>(table), state.Digests[table]);
    putState.Finish();
}

void StoreRows::WriteAll(const StoredTables& values, const StoreState& state) {
    for (std::size_t table = 0; table < StoredTableCount; ++table)
        for (const auto& [place, names] : values[table])
            for (const auto& [name, value] : names)
                if (!std::holds_alternative<NoValue>(value)) Write(static_cast<StoredTable>(table), place, name, value);
    Write(state);
}

}  // namespace orvelle::store
