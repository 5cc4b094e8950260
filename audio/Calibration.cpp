// The engine's own dialogue that measures how loud the microphone and the room are.
#include "panel/FrmOrvelle.h"
#include "panel/Texts.h"

namespace orvelle {

// The output squelch is handed to a read as its default, whose result is dropped: it is never saved.
void FrmOrvelle::VVLCalibrate_Click() {
    float inputSquelch = 0;
    float outputSquelch = 0;
    bool calibrated = false;
    {
        const HandlerDepth::Suspension suspension(handlers);
        calibrated =
            VVL.Calibrate(VVLMicrophone.ListIndex() - 1, VVLHeadset.ListIndex() - 1, inputSquelch, outputSquelch);
    }
    if (!calibrated) return;
    SaveSettingString("VVLInputSquelch", NumberText(inputSquelch));
    GetSettingString("VVLOutputSquelch", NumberText(outputSquelch));
}

}  // namespace orvelle
