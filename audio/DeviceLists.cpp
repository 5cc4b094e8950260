// The choice of microphone, headset and speakers: each drives the voice engine's device and the mixer that belongs to
// it. Entry 0 of microphone and headset is the default device; the speakers have "None" before it.
#include <initializer_list>

#include "panel/FrmOrvelle.h"
#include "panel/Texts.h"
#include "platform/EngineRecord.h"

namespace orvelle {

namespace {

constexpr const char* DefaultMapper = "Default Mapper";
constexpr const char* NoSpeakers = "None";

void SelectSaved(ComboBox& box, const std::string& name) {
    const Long index = box.IndexOf(name);
    if (index >= 0) box.Select(index);
}

// The mixer's name of a device: without the prefix of the sound system, which counts in any case.
std::string MixerName(const std::string& device) {
    for (const std::string prefix : {"DIRECTSOUND - ", "WAVE - "})
        if (UpperCase(device.substr(0, prefix.size())) == prefix) return device.substr(prefix.size());
    return device == DefaultMapper ? DefaultMixerDevice : device;
}

}  // namespace

void FrmOrvelle::FillDeviceLists() {
    VVLMicrophone.AddItem(DefaultMapper);
    for (const std::string& name : Lines(VVL.InputDevices())) VVLMicrophone.AddItem(name);
    VVLSpeakers.AddItem(NoSpeakers);
    VVLSpeakers.AddItem(DefaultMapper);
    VVLHeadset.AddItem(DefaultMapper);
    for (const std::string& name : Lines(VVL.OutputDevices())) {
        VVLHeadset.AddItem(name);
        VVLSpeakers.AddItem(name);
    }
    SelectSaved(VVLMicrophone, GetSettingString("VVLMicrophone", DefaultMapper));
    SelectSaved(VVLHeadset, GetSettingString("VVLHeadset", DefaultMapper));
    SelectSaved(VVLSpeakers, GetSettingString("VVLSpeakers", NoSpeakers));
}

void FrmOrvelle::VVLMicrophone_Click() {
    SaveSettingString("VVLMicrophone", VVLMicrophone.Text);
    if (VVLRunning) VVL.InputDevice(VVLMicrophone.ListIndex() - 1);
    RestartVolumeControl();
}

void FrmOrvelle::VVLHeadset_Click() {
    SaveSettingString("VVLHeadset", VVLHeadset.Text);
    if (VVLRunning) VVL.OutputDevice(Headset, VVLHeadset.ListIndex() - 1);
    RestartVolumeControl();
}

// Without speakers the engine's second output follows the headset.
void FrmOrvelle::VVLSpeakers_Click() {
    SaveSettingString("VVLSpeakers", VVLSpeakers.Text);
    if (VVLRunning) {
        const bool own = VVLSpeakers.ListIndex() != 0;
        if (Tessaly.OpenInterface(OwnVVL)) {
            Tessaly.SetParam(engine_record::SpeakersHaveDevice, own ? 1 : 0);
            Tessaly.CloseInterface();
        }
        VVL.OutputDevice(Speakers, own ? VVLSpeakers.ListIndex() - 2 : VVLHeadset.ListIndex() - 1);
        VVLSpeakersStatus.Visible = own;
    }
    RestartVolumeControlHP();
}

void FrmOrvelle::RestartVolumeControl() {
    VolumeControl.InputDevice(MixerName(VVLMicrophone.Text));
    VolumeControl.OutputDevice(MixerName(VVLHeadset.Text));
}

void FrmOrvelle::RestartVolumeControlHP() {
    const bool hasSpeakers = VVLSpeakers.Text() != NoSpeakers;
    if (hasSpeakers) {
        VolumeControlHP.OutputDevice(MixerName(VVLSpeakers.Text));
        VolumeControlHP.Open();
    } else {
        VolumeControlHP.Close();
    }
    for (Control* control : std::initializer_list<Control*>{&VVLOutHP, &LblVVLOutHP, &LblGWaveOutHP, &LblWaveOutHP,
                                                            &LblWaveOutWaveHP, &WaveOutHP, &WaveOutWaveHP})
        control->Visible = hasSpeakers;
}

}  // namespace orvelle
