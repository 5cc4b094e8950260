// A door for another program: an invisible control that watches its window for one private message and raises
// Terminate when it comes.
#pragma once

#include <cstdint>
#include <string>

#include "panel/SysTray.h"

namespace orvelle {

class Stub : public Control {
public:
    static constexpr Long TerminationMessage = 1237;

    Stub(Form& form, std::string name, Windows& windowSystem, const mSysTray& module);

    void EStart();
    void EStop();
    void SignalTerminate() { Terminate(); }

    Event<> Terminate;

private:
    static Long StubProcedure(Control& window, Long message, Long wParam, Long lParam);

    Windows& windows;
    const mSysTray& trayModule;
    std::intptr_t savedWindowProc = 0;
};

}  // namespace orvelle
