#include "deck/pages/InputsBox.h"

#include "adapters/looks/Text.h"
#include "deck/fields/EngineLight.h"
#include "deck/fields/JoystickRow.h"
#include "deck/fields/KeyboardField.h"
#include "platform/sides/HeldKeysSide.h"
#include "platform/sides/VoiceEngineView.h"

namespace orvelle::deck {

namespace {

constexpr const char* RoomNames[] = {"COM1", "COM2", "Private"};

}  // namespace

InputsBox::InputsBox(SimulatorSide& simulator, VoiceEngineView* voiceEngine, HeldKeysSide* heldKeys)
    : Section("Inputs", "Keyboard and joysticks", 3), engine(voiceEngine), keys(heldKeys) {
    AddRow("&Keyboard", {new KeyboardField(simulator)});
    AddRow("Stick", {new JoystickRow(simulator, "Stick")});
    AddRow("Throttle", {new JoystickRow(simulator, "Throttle")});
    if (engine) AddEngine();
    if (keys) AddHeldKeys();
}

void InputsBox::AddEngine() {
    AddRow("Voice engine", {new EngineLight("FlightEngine", *engine)});
    talks = {new SignalLight("TalksCOM1"), new SignalLight("TalksCOM2"), new SignalLight("TalksPrivate")};
    AddRow("Microphone", {talks[0], talks[1], talks[2]});
    engineWatch = engine->Observe([this] { ShowRooms(); });
    ShowRooms();
}

void InputsBox::AddHeldKeys() {
    holds = new SignalLight("HeldKeys");
    AddRow("This keyboard", {holds});
    keysWatch = keys->Observe([this] { ShowHeldKeys(); });
    ShowHeldKeys();
}

void InputsBox::ShowRooms() {
    for (std::size_t room = 0; room < talks.size(); ++room) {
        const VoiceRoom& place = engine->Room(static_cast<Long>(room));
        const bool isHeard = place.Presence == RoomPresence::In && !place.Muted;
        talks.at(room)->Show(isHeard ? Sign::Good : Sign::Off,
                             QString(isHeard ? "%1 talks" : "%1 silent").arg(RoomNames[room]));
    }
}

void InputsBox::ShowHeldKeys() {
    QStringList names;
    for (const std::string& name : keys->HeldKeys()) names.append(ToQt(name));
    if (names.isEmpty())
        holds->Show(Sign::Off, "The panel holds no key down");
    else
        holds->Show(Sign::Good, QString("The panel holds %1 down").arg(names.join("+")));
}

}  // namespace orvelle::deck
