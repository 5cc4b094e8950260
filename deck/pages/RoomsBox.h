// The three rooms of the voice engine that serves side by side: what the panel made of each, and what happens in it.
#pragma once

#include <array>

#include "deck/fields/Section.h"
#include "platform/Ticket.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;

namespace orvelle {
class VoiceEngineSide;
class VoiceEngineView;
struct VoiceRoom;
}  // namespace orvelle

namespace orvelle::deck {

class Readout;
class SelectableText;
class SignalLight;
class TextField;

class RoomsBox : public Section {
public:
    // What can be made to happen does in the engine that is played.
    RoomsBox(VoiceEngineSide& playedEngine, VoiceEngineView& servingEngine);

private:
    struct Room {
        SignalLight* State;
        Readout* Client;
        Readout* Address;
        SignalLight* Microphone;
        SignalLight* Headset;
        SignalLight* Speakers;
        SignalLight* Audio;
        QCheckBox* CarriesAudio;
        QPushButton* Kick;
        QComboBox* Joins;
        TextField* Status;
        SelectableText* RealStatus;  // in its place
    };

    Room NewRoom(int number);
    void AddRealStatus();
    void ShowPanelsDoing(const Room& shown, const VoiceRoom& room) const;
    void ShowState();

    VoiceEngineSide& played;
    const VoiceEngineView& engine;
    std::array<Room, 3> rooms;
    std::array<QLabel*, 3> realCaptions{};
    Ticket watch;
};

}  // namespace orvelle::deck
