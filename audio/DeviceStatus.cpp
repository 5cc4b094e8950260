// The three device lamps, the calibration, the distortion filter and the private channel's own mapping.
#include "panel/FrmOrvelle.h"
#include "panel/Texts.h"

namespace orvelle {

void FrmOrvelle::TimerDeviceStatus_Timer() {
    const auto show = [](Shape& lamp, bool works) { lamp.FillColor = works ? LampGreen : LampRed; };
    show(VVLMicrophoneStatus, VVL.InputStatus());
    show(VVLHeadsetStatus, VVL.OutputStatus(Headset));
    show(VVLSpeakersStatus, VVL.OutputStatus(Speakers));
}

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

void FrmOrvelle::VVLFilter_Click() {
    SaveSettingLong("VVLFilter", VVLFilter.Value);
    if (!VVLRunning) return;
    VVL.OutputFilter(Headset, VVLFilter.Value == 1);
    VVL.OutputFilter(Speakers, VVLFilter.Value == 1);
}

void FrmOrvelle::VVLPrivEnable_Click() {
    SaveSettingLong("VVLPrivEnable", VVLPrivEnable.Value);
    for (Control* control : PrivateMapping()) control->Enabled = VVLPrivEnable.Value == 1;
}

}  // namespace orvelle
