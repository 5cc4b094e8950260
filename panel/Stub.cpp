#include "panel/Stub.h"

#include <utility>

namespace orvelle {

Stub::Stub(Form& form, std::string name, Windows& windowSystem, const mSysTray& module)
    : Control(form, std::move(name)), windows(windowSystem), trayModule(module) {}

void Stub::EStart() {
    savedWindowProc =
        windows.SetWindowLongA(*this, WindowProcedureIndex, reinterpret_cast<std::intptr_t>(&StubProcedure));
    windows.SetWindowLongA(*this, WindowUserData, reinterpret_cast<std::intptr_t>(this));
}

void Stub::EStop() { windows.SetWindowLongA(*this, WindowProcedureIndex, savedWindowProc); }

// Messages go on to the procedure that the tray replaced, not to the one saved here: until the tray icon is up there is
// none, and the message ends here.
Long Stub::StubProcedure(Control& window, Long message, Long wParam, Long lParam) {
    auto& hooked = static_cast<Stub&>(window);
    if (message == TerminationMessage) {
        auto* const stub = reinterpret_cast<Stub*>(hooked.windows.GetWindowLongA(window, WindowUserData));
        stub->SignalTerminate();
    }
    return hooked.windows.CallWindowProcA(hooked.trayModule.OldWindowProc, window, message, wParam, lParam);
}

}  // namespace orvelle
