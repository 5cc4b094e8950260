// Keys and buttons that the user tells the panel by pressing them on the simulator's computer. The caption of a Set
// button is the whole state: "Cancel" while the slot waits.
#include "panel/FrmOrvelle.h"

namespace orvelle {

namespace {

template <typename Slots>
const RemoteSlot* FirstWaiting(const Slots& slots) {
    for (const RemoteSlot& slot : slots)
        if (slot.Waits()) return &slot;
    return nullptr;
}

}  // namespace

void FrmOrvelle::RemoteSet_Click(const RemoteSlot& slot) {
    if (!slot.Waits()) {
        slot.Set.Caption = "Cancel";
        slot.Display.Text = slot.Prompt();
        slot.Clear.Enabled = false;
        return;
    }
    // A table's key sequence keeps whatever is shown, the prompt included.
    slot.Set.Caption = "Set";
    if (slot.Takes != RemoteSlot::Kind::KeySequence) slot.ShowField();
    slot.Clear.Enabled = true;
}

void FrmOrvelle::RemoteClear_Click(const RemoteSlot& slot) {
    slot.Field = "";
    slot.Display.Text = slot.ClearedText();
    if (!slot.Setting.empty()) SaveSettingString(slot.Setting, "");
}

// A slot takes the single key, though it is the sequence that later presses are compared with. A table's slot stays
// open, and each further key replaces the sequence with the longer one.
bool FrmOrvelle::CaptureKeyDown(const std::string& key, const std::string& keySequence) {
    const RemoteSlot* const slot = FirstWaiting(keySlots);
    if (slot == nullptr) return false;
    if (keySequence.empty()) return true;
    if (slot->Takes == RemoteSlot::Kind::KeySequence) {
        slot->Field = keySequence;
        slot->Display.Text = keySequence;
    } else {
        FillSlot(*slot, key);
    }
    return true;
}

bool FrmOrvelle::CaptureJoyDown(const std::string& button) {
    const RemoteSlot* const slot = FirstWaiting(joySlots);
    if (slot == nullptr) return false;
    if (!button.empty()) FillSlot(*slot, button);
    return true;
}

void FrmOrvelle::FillSlot(const RemoteSlot& slot, const std::string& text) {
    slot.Set.Caption = "Set";
    slot.Field = text;
    slot.ShowField();
    if (!slot.Setting.empty()) SaveSettingString(slot.Setting, text);
    slot.Clear.Enabled = true;
}

// Ends the capture of the first of four slots, in an order of their own; the private channel's slot is not among them.
bool FrmOrvelle::CaptureKeyUp() {
    for (const SlotOwner owner : {TableSlot, VatsimSlot, TeamSpeakSlot, RogerWilcoSlot}) {
        const RemoteSlot& slot = keySlots[owner];
        if (!slot.Waits()) continue;
        slot.Set.Caption = "Set";
        slot.Clear.Enabled = true;
        return true;
    }
    return false;
}

}  // namespace orvelle
