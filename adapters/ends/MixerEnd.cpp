#include "adapters/ends/MixerEnd.h"

#include <utility>

namespace orvelle::ends {

MixerEnd::MixerEnd(MixerControl& first) : serving(&first) { Join(); }

void MixerEnd::Serve(MixerControl& mixer) {
    if (&mixer == serving) return;
    Part();
    serving = &mixer;
    Join();
    serving->InputDevice(inputDevice);
    serving->OutputDevice(outputDevice);
    if (std::exchange(isInputOpen, false)) InputClosed();
    if (std::exchange(isOutputOpen, false)) OutputClosed();
    if (isOpen) serving->Open();
}

void MixerEnd::InputDevice(const std::string& name) {
    inputDevice = name;
    serving->InputDevice(name);
}

void MixerEnd::OutputDevice(const std::string& name) {
    outputDevice = name;
    serving->OutputDevice(name);
}

void MixerEnd::Open() {
    isOpen = true;
    serving->Open();
}

void MixerEnd::Close() {
    isOpen = isInputOpen = isOutputOpen = false;
    serving->Close();
}

void MixerEnd::Join() {
    serving->InputOpened = [this] {
        isInputOpen = true;
        InputOpened();
    };
    serving->InputClosed = [this] {
        isInputOpen = false;
        InputClosed();
    };
    serving->OutputOpened = [this] {
        isOutputOpen = true;
        OutputOpened();
    };
    serving->OutputClosed = [this] {
        isOutputOpen = false;
        OutputClosed();
    };
    serving->MicVolumeChanged = [this] { MicVolumeChanged(); };
    serving->MasterVolumeChanged = [this] { MasterVolumeChanged(); };
    serving->WaveVolumeChanged = [this] { WaveVolumeChanged(); };
}

void MixerEnd::Part() {
    serving->Close();
    for (Event<>* const event :
         {&serving->InputOpened, &serving->InputClosed, &serving->MicVolumeChanged, &serving->OutputOpened,
          &serving->OutputClosed, &serving->MasterVolumeChanged, &serving->WaveVolumeChanged})
        *event = std::function<void()>();
}

}  // namespace orvelle::ends
