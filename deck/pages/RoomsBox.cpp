#include "deck/pages/RoomsBox.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "deck/fields/Fields.h"
#include "deck/fields/Readout.h"
#include "deck/fields/SelectableText.h"
#include "deck/fields/SignalLight.h"
#include "deck/fields/TextField.h"
#include "platform/sides/VoiceEngineSide.h"

namespace orvelle::deck {

namespace {

// In the order of the entries
constexpr JoinOutcome JoinOutcomes[] = {JoinOutcome::Succeeds, JoinOutcome::Refused, JoinOutcome::Fails};

const QStringList RoomNames{"0  COM1", "1  COM2", "2  Private"};

void ShowRoomState(SignalLight& light, RoomPresence presence) {
    switch (presence) {
        case RoomPresence::Out:
            return light.Show(Sign::Off, "Out");
        case RoomPresence::Joining:
            return light.Show(Sign::Waiting, "Joining");
        case RoomPresence::In:
            return light.Show(Sign::Good, "In");
    }
}

void ShowSwitch(SignalLight& light, bool on, const QString& whenOn, const QString& whenOff) {
    light.Show(on ? Sign::Good : Sign::Off, on ? whenOn : whenOff);
}

}  // namespace

RoomsBox::RoomsBox(VoiceEngineSide& playedEngine, VoiceEngineView& servingEngine)
    : Section("Rooms", "Rooms", 3),
      played(playedEngine),
      engine(servingEngine),
      rooms{NewRoom(0), NewRoom(1), NewRoom(2)},
      watch(servingEngine.Observe([this] { ShowState(); })) {
    const auto addRow = [this](const QString& label, const auto field) {
        AddRow(label, {rooms[0].*field, rooms[1].*field, rooms[2].*field});
    };
    AddCaptions(RoomNames);
    addRow("State", &Room::State);
    addRow("Client", &Room::Client);
    addRow("Address", &Room::Address);
    addRow("Microphone", &Room::Microphone);
    addRow("Headset", &Room::Headset);
    addRow("Speakers", &Room::Speakers);
    addRow("Audio", &Room::Audio);
    addRow("", &Room::CarriesAudio);
    addRow("Status text", &Room::Status);
    AddRealStatus();
    addRow("Joins", &Room::Joins);
    addRow("", &Room::Kick);
    ShowState();
}

RoomsBox::Room RoomsBox::NewRoom(int number) {
    const QString name = QString("Room%1").arg(number);
    return {new SignalLight(name + "State"),
            new Readout(name + "Client"),
            new Readout(name + "Address"),
            new SignalLight(name + "Microphone"),
            new SignalLight(name + "Headset"),
            new SignalLight(name + "Speakers"),
            new SignalLight(name + "Audio"),
            NewCheck(name + "CarriesAudio", "Carries audio", "The room carries audio",
                     [this, number](bool on) { played.SetRoomAudio(number, on); }),
            NewButton(name + "Kick", "Kick", "The voice server throws the panel out of the room, if it is in there",
                      [this, number] { played.Kick(number); }),
            NewChoice(name + "Joins", "How joins of this room go", {"Succeed", "Are refused", "Fail"},
                      [this, number](int index) { played.SetJoinOutcome(number, JoinOutcomes[index]); }),
            NewEdit(name + "Status", "The room's status text; Enter applies it",
                    [this, number](const std::string& text) { played.SetRoomStatus(number, text); }),
            new SelectableText(name + "RealStatus")};
}

// A sentence that nobody types is read in full: each has a line of its own, over all columns, in the place of the
// fields.
void RoomsBox::AddRealStatus() {
    int row = 0;
    int column = 0;
    int span = 0;
    Grid().getItemPosition(Grid().indexOf(rooms[0].Status), &row, &column, &span, &span);
    auto* lines = new QGridLayout;
    lines->setHorizontalSpacing(Unit);
    lines->setVerticalSpacing(Unit / 2);
    lines->setColumnStretch(1, 1);
    for (std::size_t room = 0; room < rooms.size(); ++room) {
        realCaptions.at(room) = new QLabel(RoomNames.at(static_cast<qsizetype>(room)));
        rooms.at(room).RealStatus->setAccessibleName(rooms.at(room).Status->accessibleName());
        lines->addWidget(realCaptions.at(room), static_cast<int>(room), 0, Qt::AlignTop);
        lines->addWidget(rooms.at(room).RealStatus, static_cast<int>(room), 1);
    }
    Grid().addLayout(lines, row, 1, 1, 3);
}

// An engine that stands still has nobody in its rooms, and nothing is open there.
void RoomsBox::ShowPanelsDoing(const Room& shown, const VoiceRoom& room) const {
    ShowRoomState(*shown.State, room.Presence);
    if (!engine.IsRunning()) {
        for (SignalLight* light : {shown.Microphone, shown.Headset, shown.Speakers, shown.Audio})
            light->Show(Sign::Off, "");
        for (Readout* text : {shown.Client, shown.Address}) text->Show(QString());
        return;
    }
    shown.Client->Show(room.ClientName);
    shown.Address->Show(room.Address);
    ShowSwitch(*shown.Microphone, !room.Muted, "Open", "Muted");
    ShowSwitch(*shown.Headset, room.Output[0], "Heard", "Silent");
    ShowSwitch(*shown.Speakers, room.Output[1], "Heard", "Silent");
    ShowSwitch(*shown.Audio, room.Audio, "On the air", "Quiet");
}

void RoomsBox::ShowState() {
    for (Long number = 0; number < static_cast<Long>(rooms.size()); ++number) {
        const Room& shown = rooms.at(static_cast<std::size_t>(number));
        const VoiceRoom& room = engine.Room(number);
        ShowPanelsDoing(shown, room);
        shown.CarriesAudio->setChecked(room.Audio);
        shown.CarriesAudio->setEnabled(played.IsServing() && room.Presence == RoomPresence::In);
        shown.Joins->setCurrentIndex(static_cast<int>(played.Room(number).Joins));
        shown.Status->Show(room.Status);
        shown.RealStatus->Show(room.Status);
        shown.Status->setVisible(played.IsServing());
        shown.RealStatus->setVisible(!played.IsServing());
        realCaptions.at(static_cast<std::size_t>(number))->setVisible(!played.IsServing());
        shown.Kick->setEnabled(played.IsServing());
        shown.Joins->setEnabled(played.IsServing());
    }
}

}  // namespace orvelle::deck
