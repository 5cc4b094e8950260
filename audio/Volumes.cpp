// The eight sliders. Five mirror lines of the mixers and show only while their line is there; three set the engine's
// own levels. A mixer's slider listens to the user's moves alone, so a value that comes from the mixer goes nowhere.
#include "panel/FrmOrvelle.h"

namespace orvelle {

namespace {

// Makes a slider show a line: range, step and level, read in this order.
template <typename Read>
void ShowLine(Slider& slider, MixerControl& mixer, Read min, Read max, Read step, Read volume) {
    slider.Min = (mixer.*min)();
    slider.Max = (mixer.*max)();
    slider.TickFrequency = (mixer.*step)();
    slider.Value = (mixer.*volume)();
}

using ReadLevel = Integer (MixerControl::*)();

}  // namespace

// The controls of one mixer's output.
struct FrmOrvelle::OutputSliders {
    Slider& Master;
    Label& MasterLabel;
    Label& Heading;
    Slider& Wave;
    Label& WaveLabel;

    void ShowMaster(bool visible) const {
        Master.Visible = visible;
        MasterLabel.Visible = visible;
        Heading.Visible = visible;
    }
    void ShowWave(bool visible) const {
        Wave.Visible = visible;
        WaveLabel.Visible = visible;
    }
};

FrmOrvelle::OutputSliders FrmOrvelle::HeadsetSliders() {
    return {WaveOut, LblWaveOut, LblGWaveOut, WaveOutWave, LblWaveOutWave};
}

FrmOrvelle::OutputSliders FrmOrvelle::SpeakerSliders() {
    return {WaveOutHP, LblWaveOutHP, LblGWaveOutHP, WaveOutWaveHP, LblWaveOutWaveHP};
}

void FrmOrvelle::VolumeControl_InputOpened() {
    const bool available = !VolumeControl.MicUnavailable();
    WaveIn.Visible = available;
    LblWaveIn.Visible = available;
    if (available)
        ShowLine<ReadLevel>(WaveIn, VolumeControl, &MixerControl::MicMin, &MixerControl::MicMax, &MixerControl::MicStep,
                            &MixerControl::MicVolume);
}

void FrmOrvelle::VolumeControl_InputClosed() {
    WaveIn.Visible = false;
    LblWaveIn.Visible = false;
}

void FrmOrvelle::VolumeControl_OutputOpened() { OutputOpened(VolumeControl, HeadsetSliders()); }

void FrmOrvelle::VolumeControl_OutputClosed() { OutputClosed(HeadsetSliders()); }

void FrmOrvelle::VolumeControlHP_OutputOpened() { OutputOpened(VolumeControlHP, SpeakerSliders()); }

void FrmOrvelle::VolumeControlHP_OutputClosed() { OutputClosed(SpeakerSliders()); }

void FrmOrvelle::OutputOpened(MixerControl& mixer, const OutputSliders& sliders) {
    if (mixer.MasterUnavailable()) {
        OutputClosed(sliders);
        return;
    }
    sliders.ShowMaster(true);
    ShowLine<ReadLevel>(sliders.Master, mixer, &MixerControl::MasterMin, &MixerControl::MasterMax,
                        &MixerControl::MasterStep, &MixerControl::MasterVolume);
    const bool hasWave = !mixer.WaveUnavailable();
    sliders.ShowWave(hasWave);
    if (hasWave)
        ShowLine<ReadLevel>(sliders.Wave, mixer, &MixerControl::WaveMin, &MixerControl::WaveMax,
                            &MixerControl::WaveStep, &MixerControl::WaveVolume);
}

void FrmOrvelle::OutputClosed(const OutputSliders& sliders) {
    sliders.ShowMaster(false);
    sliders.ShowWave(false);
}

void FrmOrvelle::VVLOut_Scroll() {
    SaveSettingLong("VVLOutVolume", VVLOut.Value);
    if (VVLRunning) VVL.OutputVolume(Headset, VVLOut.Value);
}

void FrmOrvelle::VVLOutHP_Scroll() {
    SaveSettingLong("VVLOutHPVolume", VVLOutHP.Value);
    if (VVLSpeakers.ListIndex() != 0 && VVLRunning) VVL.OutputVolume(Speakers, VVLOutHP.Value);
}

void FrmOrvelle::VVLSignal_Change() {
    SaveSettingLong("VVLSignalVolume", VVLSignal.Value);
    if (!VVLRunning) return;
    VVL.SignalVolume(Headset, VVLSignal.Value);
    if (VVLSpeakers.ListIndex() != 0) VVL.SignalVolume(Speakers, VVLSignal.Value);
}

}  // namespace orvelle
