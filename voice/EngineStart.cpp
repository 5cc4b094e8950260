// The start and stop of the voice engine for the routing. What follows once it runs is in VatsimEngine.cpp.
#include "panel/FrmOrvelle.h"

namespace orvelle {

void FrmOrvelle::VVLStart(bool& result) {
    result = true;
    if (VVLRunning) return;
    if (VVL.Running()) {
        // The control does not report a start again.
        VVLRunning = true;
        VVL_Started();
        return;
    }
    result = VVL.Start(EngineMode);
    VVLRunning = result;
}

// The engine itself stays up, without rooms, until the panel ends.
void FrmOrvelle::VVLStop() {
    if (!VVLRunning) return;
    if (VVL.Running())
        for (Long room = 0; room < Rooms; ++room) VVL.RoomLeave(room);
    VVL_Stopped();
    VVLRunning = false;
}

}  // namespace orvelle
