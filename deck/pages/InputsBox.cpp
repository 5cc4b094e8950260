#include "deck/pages/InputsBox.h"

#include "deck/fields/EngineLight.h"
#include "deck/fields/JoystickRow.h"
#include "deck/fields/KeyboardField.h"
#include "platform/sides/VoiceEngineSide.h"

namespace orvelle::deck {

namespace {

constexpr const char* RoomNames[] = {"COM1", "COM2", "Private"};

}  // namespace

InputsBox::InputsBox(SimulatorSide& simulator, VoiceEngineSide* voiceEngine)
    : Section("Inputs", "Keyboard and joysticks", 3), engine(voiceEngine) {
    AddRow("&Keyboard", {new KeyboardField(simulator)});
    AddRow("Stick", {new JoystickRow(simulator, "Stick")});
    AddRow("Throttle", {new JoystickRow(simulator, "Throttle")});
    if (!engine) return;
    AddRow("Voice engine", {new EngineLight("FlightEngine", *engine)});
    talks = {new SignalLight("TalksCOM1"), new SignalLight("TalksCOM2"), new SignalLight("TalksPrivate")};
    AddRow("Microphone", {talks[0], talks[1], talks[2]});
    watch = engine->Observe([this] { ShowState(); });
    ShowState();
}

void InputsBox::ShowState() {
    for (std::size_t room = 0; room < talks.size(); ++room) {
        const VoiceRoom& place = engine->Room(static_cast<Long>(room));
        const bool isHeard = place.Presence == RoomPresence::In && !place.Muted;
        talks.at(room)->Show(isHeard ? Sign::Good : Sign::Off,
                             QString(isHeard ? "%1 talks" : "%1 silent").arg(RoomNames[room]));
    }
}

}  // namespace orvelle::deck
