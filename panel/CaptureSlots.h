// The slots in which keys and buttons are captured. A remote slot waits for the simulator's computer: its Set button's
// caption, "Set" or "Cancel", is its state. A local slot collects keys of this computer for three seconds.
#pragma once

#include <string>

#include "platform/controls/Buttons.h"
#include "platform/controls/TextBox.h"

namespace orvelle {

struct RemoteSlot {
    enum class Kind {
        Key,          // the single key
        KeySequence,  // the whole sequence of a table row
        Button,       // shown without its prefix
        WholeButton,  // a table row's, shown with its prefix
    };

    Kind Takes;
    CommandButton& Set;
    CommandButton& Clear;
    TextBox& Display;
    std::string& Field;
    std::string Setting;  // "": not kept

    bool Waits() const { return Set.Caption == "Cancel"; }
    const char* Prompt() const;
    const char* EmptyText() const;    // after a Cancel or a capture, and at load
    const char* ClearedText() const;  // after a Clear
    // What the display shows of a field that is not empty.
    std::string Shown(const std::string& text) const;
    // Shows the field, or the empty text.
    void ShowField() const;
};

struct LocalSlot {
    CommandButton& Set;
    CommandButton& Clear;
    TextBox& Display;
    std::string& Field;
    std::string Setting;  // written by Clear; "": not kept
};

}  // namespace orvelle
