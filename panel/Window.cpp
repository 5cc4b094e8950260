// Where the window opens, what its close box does, and how it comes back from the notification area.
#include <cmath>
#include <limits>

#include "panel/FrmOrvelle.h"
#include "platform/RuntimeError.h"

namespace orvelle {

namespace {

Long WholeTwips(double twips) {
    const double whole = std::nearbyint(twips);
    using Range = std::numeric_limits<Long>;
    if (whole < Range::min() || whole > Range::max()) throw RuntimeError(RuntimeError::Overflow);
    return static_cast<Long>(whole);
}

}  // namespace

// A minimised or maximised window saves nothing.
void FrmOrvelle::SavePosition() {
    if (WindowState != Normal) return;
    SaveSettingLong("Top", WholeTwips(Top));
    SaveSettingLong("Left", WholeTwips(Left));
}

// The close box only hides the window; any other unload goes on.
void FrmOrvelle::Form_QueryUnload(Long& cancel, Long mode) {
    cancel = mode == ControlMenu ? 1 : 0;
    if (mode == ControlMenu) Hide();
}

void FrmOrvelle::mnuTrayShow_Click() {
    Show();
    WindowState = Normal;
}

void FrmOrvelle::mnuTrayVisible_Click() {
    Show();
    WindowState = Normal;
    Left = 10;
    Top = 10;
}

void FrmOrvelle::ST_MouseDown(Integer& button, Long&) {
    if (button == 2) {
        PopupMenu(mnuTray);
    } else if (Visible) {
        Hide();
    } else {
        Show();
        WindowState = Normal;
    }
}

}  // namespace orvelle
