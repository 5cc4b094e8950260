#include "tests/store/TrialValues.h"

#include <iostream>

namespace orvelle::store {

std::string Section(int row) { return "OrvelleCP\\Joy2Key\\" + std::to_string(row); }

void Write(SqliteStore& store, const Values& unit) {
    for (const auto& [row, value] : unit)
        if (value.empty())
            store.DeleteSettingSection(Section(row));
        else
            store.SaveSettingString(Section(row), "J2KJoy", value);
    store.HandlerEnded();
}

Values Read(SqliteStore& store) {
    Values values;
    for (int row = 0; row < Rows + NewRows; ++row) values[row] = store.GetSettingString(Section(row), "J2KJoy", "");
    return values;
}

Values NoRows() {
    Values values;
    for (int row = 0; row < Rows + NewRows; ++row) values[row] = "";
    return values;
}

Values FirstUnit() {
    Values unit;
    for (int row = 0; row < Rows; ++row) unit[row] = std::to_string(row) + std::string(120, 'r');
    return unit;
}

Units LaterUnits(int count) {
    Units units;
    for (int unit = 0; unit < count; ++unit)
        units.push_back({{unit * 7 % Rows, "later " + std::to_string(unit) + std::string(100, 'l')},
                         {(unit * 7 + 2) % Rows, ""},
                         {Rows + unit % NewRows, "new " + std::to_string(unit)}});
    return units;
}

void Report(const std::string& harm, const Outcomes& outcomes) {
    std::cout << harm << ": as saved " << outcomes.Saved << ", as saved and told " << outcomes.SavedAndTold
              << ", with values of the copy, told " << outcomes.Copied << ", with older values, told " << outcomes.Older
              << ", in silence " << outcomes.Silent << ", wrong " << outcomes.Wrong << std::endl;
}

}  // namespace orvelle::store
