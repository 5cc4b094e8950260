// What an event of the simulator's computer does to the rows of the two tables: which of them it concerns, and whether
// their keys go down or up.
#include "input/Matching.h"
#include "panel/FrmOrvelle.h"

namespace orvelle {

void FrmOrvelle::FireJoyRows(bool released, const std::string& button) {
    if (button.empty()) return;
    for (const Long row : ListJoyToKey.RowsWithText(button)) ApplyKeyMapping(released, ListJoyToKey, row);
}

// The rows of that sequence, and those held down, as pressing any single key of a toggled-on row turns it off. No other
// row is concerned, so no other is looked at.
void FrmOrvelle::FireKeyRows(bool repeat, bool fsActive, const std::string& key, const std::string& keySequence) {
    std::set<Long> concerned = ListKeyToKey.MarkedRows();
    if (!keySequence.empty()) {
        const std::vector<Long>& equal = ListKeyToKey.RowsWithText(keySequence);
        concerned.insert(equal.begin(), equal.end());
    }
    for (const Long row : concerned) {
        const std::string& text = ListKeyToKey.Row(row).Text;
        const bool isOn =
            ListKeyToKey.SubItem(row, KeyStateColumn) == Down && ListKeyToKey.SubItem(row, ToggleColumn) == "Toggle";
        const bool fires = Equals(keySequence, text) ? isOn || (!repeat && fsActive) : isOn && Contains(text, key);
        if (fires) ApplyKeyMapping(false, ListKeyToKey, row);
    }
}

void FrmOrvelle::ReleaseKeyRows(const std::string& key) {
    const std::set<Long> held = ListKeyToKey.MarkedRows();
    for (const Long row : held)
        if (Contains(ListKeyToKey.Row(row).Text, key)) ApplyKeyMapping(true, ListKeyToKey, row);
}

// A push row holds its keys while the input is down; a toggled row presses on one press and releases on the next.
void FrmOrvelle::ApplyKeyMapping(bool released, ListView& list, Long row) {
    const bool isToggle = list.SubItem(row, ToggleColumn) == "Toggle";
    const std::string& state = list.SubItem(row, KeyStateColumn);
    bool release = released;
    if (isToggle) {
        if (released || (!state.empty() && state != Down)) return;
        release = state == Down;
    } else if (released && state != Down) {
        return;
    }
    SendKeyStrokes(release, list.SubItem(row, KeyScanColumn));
    list.SetSubItem(row, KeyStateColumn, release ? "" : Down);
}

}  // namespace orvelle
