// The three device lamps: once a second while the engine runs, whether each device works.
#include "panel/FrmOrvelle.h"

namespace orvelle {

void FrmOrvelle::TimerDeviceStatus_Timer() {
    const auto show = [](Shape& lamp, bool works) { lamp.FillColor = works ? LampGreen : LampRed; };
    show(VVLMicrophoneStatus, VVL.InputStatus());
    show(VVLHeadsetStatus, VVL.OutputStatus(Headset));
    show(VVLSpeakersStatus, VVL.OutputStatus(Speakers));
}

}  // namespace orvelle
