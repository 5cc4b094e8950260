// Keys that the user tells the panel by pressing them on this computer: for three seconds the panel serves its own
// messages and collects the key-downs among them. The time is the only way out.
#include <cmath>

#include "panel/FrmOrvelle.h"
#include "platform/LocalKeyTexts.h"

namespace orvelle {

namespace {

constexpr Long PollWait = 200;  // ms
constexpr Long CodeBits = 511;
constexpr double KeyMessageUnit = 65536;

}  // namespace

void FrmOrvelle::LocalSet_Click(const LocalSlot& slot) {
    slot.Display.Text = LocalKeyPrompt;
    slot.Set.Enabled = false;
    slot.Clear.Enabled = false;
    const HandlerDepth::Suspension suspension(handlers);
    Queue.DoEvents();
    Windows.SetCapture(slot.Display);
    const Long start = Clock.GetTickCount();
    slot.Field = "";
    while (TickDifference(Clock.GetTickCount(), LocalCaptureTime) < start) {
        WindowMessage message;
        while (Queue.PeekMessageA(message, RemoveMessage)) {
            if (message.Number == KeyDownMessage) {
                CollectKey(slot, message);
            } else {
                Queue.TranslateMessage(message);
                Queue.DispatchMessageA(message);
            }
        }
        Clock.Sleep(PollWait);
    }
    Windows.ReleaseCapture();
    slot.Set.Enabled = true;
    slot.Clear.Enabled = true;
}

// A code whose digits occur in the field already is dropped: an auto-repeating key is, and so is 2 behind 29.
void FrmOrvelle::CollectKey(const LocalSlot& slot, const WindowMessage& message) {
    const Long code = static_cast<Long>(std::nearbyint(message.LParam / KeyMessageUnit)) & CodeBits;
    const std::string digits = std::to_string(code);
    if (slot.Field.find(digits) == std::string::npos)
        slot.Field = slot.Field.empty() ? digits : slot.Field + "+" + digits;
    slot.Display.Text = KeyDisplayName(slot.Field);
}

void FrmOrvelle::LocalClear_Click(const LocalSlot& slot) {
    slot.Field = "";
    slot.Display.Text = LocalKeyCleared;
    if (!slot.Setting.empty()) SaveSettingString(slot.Setting, "");
}

}  // namespace orvelle
