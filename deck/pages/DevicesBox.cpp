#include "deck/pages/DevicesBox.h"

#include <QCheckBox>

#include "deck/fields/DeviceNames.h"
#include "deck/fields/Fields.h"
#include "deck/fields/Readout.h"
#include "platform/AudioDevices.h"
#include "platform/sides/VoiceEngineSide.h"

namespace orvelle::deck {

namespace {

QCheckBox* NewFailure(const QString& name, std::function<void(bool)> apply) {
    auto* check = NewCheck(name + "Fails", "Fails", "This device does not work", std::move(apply));
    check->setAccessibleName(name + ", Fails");
    return check;
}

}  // namespace

DevicesBox::DevicesBox(VoiceEngineSide& playedEngine, VoiceEngineView& servingEngine, const AudioDevices& audioDevices)
    : Section("Devices", "Devices", 4),
      played(playedEngine),
      engine(servingEngine),
      devices(audioDevices),
      microphoneFails(NewFailure("Microphone", [this](bool failed) { played.FailInput(failed); })),
      microphone(new Readout("MicrophoneDevice")),
      outputFails{NewFailure("Headset", [this](bool failed) { played.FailOutput(0, failed); }),
                  NewFailure("Speakers", [this](bool failed) { played.FailOutput(1, failed); })},
      outputs{new Readout("HeadsetDevice"), new Readout("SpeakersDevice")},
      levels{new Readout("HeadsetLevels"), new Readout("SpeakersLevels")},
      watch(servingEngine.Observe([this] { ShowState(); })) {
    levels[0]->setAccessibleName("Headset levels");
    levels[1]->setAccessibleName("Speakers levels");
    AddRow("Microphone", {microphoneFails, microphone});
    AddRow("Headset", {outputFails[0], outputs[0]});
    AddRow("", {new QWidget, levels[0]});
    AddRow("Speakers", {outputFails[1], outputs[1]});
    AddRow("", {new QWidget, levels[1]});
    ShowState();
}

void DevicesBox::ShowState() {
    microphoneFails->setChecked(engine.InputFailed());
    for (QCheckBox* fails : {microphoneFails, outputFails[0], outputFails[1]}) fails->setEnabled(played.IsServing());
    microphone->Show(DeviceName(devices.InputNames(), engine.Microphone()));
    for (std::size_t index = 0; index < outputs.size(); ++index) {
        const VoiceOutput& output = engine.Output(static_cast<Long>(index));
        outputFails.at(index)->setChecked(output.Failed);
        outputs.at(index)->Show(DeviceName(devices.OutputNames(), output.Device));
        levels.at(index)->Show(QString("Volume %1, signal %2, %3")
                                   .arg(output.Volume)
                                   .arg(output.SignalVolume)
                                   .arg(output.Filter ? "filtered" : "clear"));
    }
}

}  // namespace orvelle::deck
