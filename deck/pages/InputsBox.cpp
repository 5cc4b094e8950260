#include "deck/pages/InputsBox.h"

#include "adapters/embedded/VoiceEngine.h"
#include "deck/fields/EngineLight.h"
#include "deck/fields/JoystickRow.h"
#include "deck/fields/KeyboardField.h"

namespace orvelle::deck {

namespace {

constexpr const char* RoomNames[] = {"COM1", "COM2", "Private"};

}  // namespace

InputsBox::InputsBox(EmbeddedVelmarc& velmarc, EmbeddedVoiceEngine& voiceEngine)
    : Section("Inputs", "Keyboard and joysticks", 3),
      engine(voiceEngine),
      talks{new SignalLight("TalksCOM1"), new SignalLight("TalksCOM2"), new SignalLight("TalksPrivate")},
      watch(engine.Changed.Observe([this] { ShowState(); })) {
    AddRow("&Keyboard", {new KeyboardField(velmarc)});
    AddRow("Stick", {new JoystickRow(velmarc, "Stick")});
    AddRow("Throttle", {new JoystickRow(velmarc, "Throttle")});
    AddRow("Voice engine", {new EngineLight("FlightEngine", engine)});
    AddRow("Microphone", {talks[0], talks[1], talks[2]});
    ShowState();
}

void InputsBox::ShowState() {
    for (std::size_t room = 0; room < talks.size(); ++room) {
        const VoiceRoom& place = engine.Room(static_cast<Long>(room));
        const bool isHeard = place.State == RoomState::In && !place.Muted;
        talks.at(room)->Show(isHeard ? Sign::Good : Sign::Off,
                             QString(isHeard ? "%1 talks" : "%1 silent").arg(RoomNames[room]));
    }
}

}  // namespace orvelle::deck
