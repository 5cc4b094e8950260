// One of the two tables that turn a button or a key sequence of the simulator's computer into keys of this one, with
// its edit fields and the names under which its rows are kept. Rows are numbered from 1 in the store, without a gap.
#pragma once

#include <string>

#include "platform/controls/Buttons.h"
#include "platform/controls/ListView.h"
#include "platform/controls/TextBox.h"

namespace orvelle {

// Sub-items of a row.
enum MappingColumn : Long {
    KeyNameColumn = 1,
    ToggleColumn = 2,    // "Toggle" or "Push"
    KeyScanColumn = 3,   // scan-code sequence
    KeyStateColumn = 4,  // "DOWN" or "", never stored
};

struct MappingTable {
    ListView& List;
    std::string& Text;
    TextBox& TextDisplay;
    std::string& Keys;
    TextBox& KeysDisplay;
    CheckBox& Toggle;
    std::string Section;
    std::string TextKey;          // of the row text, on Apply and load
    std::string TextKeyOnDelete;  // of the row text, on Delete
    std::string KeysKey;

    std::string RowSection(Long row) const { return Section + "\\" + std::to_string(row); }
};

}  // namespace orvelle
