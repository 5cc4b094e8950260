// The rows that a trial of the store writes and reads again, and the table of what became of them. Used by store-trial
// and by the program that it cuts the power of.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "adapters/store/SqliteStore.h"

namespace orvelle::store {

using Values = std::map<int, std::string>;  // by row; none is ""
using Units = std::vector<Values>;          // of writes; "" deletes the row

constexpr int Rows = 450;
constexpr int NewRows = 60;
constexpr Long TheCopyIsMade = 10000;  // milliseconds of the loop's own clock

std::string Section(int row);
void Write(SqliteStore& store, const Values& unit);
Values Read(SqliteStore& store);

Values NoRows();  // each is ""
Values FirstUnit();
// So many, which change, delete and make rows.
Units LaterUnits(int count);

struct Outcomes {
    int Saved = 0, SavedAndTold = 0, Copied = 0, Older = 0, Silent = 0, Wrong = 0;
};

// Prints a line of the table.
void Report(const std::string& harm, const Outcomes& outcomes);

}  // namespace orvelle::store
