// Writes rows with their checks, and the state, by prepared statements, inside the transaction of whoever calls. Every
// call that fails throws SqliteError.
#pragma once

#include <string>
#include <vector>

#include "adapters/store/Sqlite.h"
#include "adapters/store/StoreState.h"

namespace orvelle::store {

class StoreRows {
public:
    explicit StoreRows(const Connection& file);

    // NoValue deletes the row.
    void Write(StoredTable table, const std::string& place, const std::string& name, const StoredValue& value);
    void Write(const StoreState& state);
    void WriteAll(const StoredTables& values, const StoreState& state);

private:
    struct TableStatements {
        Statement Put;
        Statement Delete;
    };

    std::vector<TableStatements> tables;  // by StoredTable
    Statement putState;
};

}  // namespace orvelle::store
