// Reads the state and the rows of an open file, and judges each row by its check and each table by its digest. Called
// by StoreReader; every call that fails throws SqliteError.
#pragma once

#include "adapters/store/Sqlite.h"

namespace orvelle::store {

struct FoundStore;

// Rows that fail are left out. Those of a file without checks need but a place and a name.
void ReadStoreValues(const Connection& file, Long version, FoundStore& found);

}  // namespace orvelle::store
