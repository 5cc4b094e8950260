#include "tests/deck/DeckRig.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QTabWidget>
#include <utility>

#include "adapters/looks/ScreenRoom.h"
#include "tests/qt/shell/WidgetInput.h"

namespace orvelle {

namespace {

constexpr int Rounds = 20;

}  // namespace

DeckRig::DeckRig() {
    WriteDownEvents();
    const QSize size = window.UsualSize().boundedTo(MostWindowSize(*window.screen()));
    window.OpenIn({QPoint(0, 0), size + FrameAllowance});
    window.activateWindow();
    EXPECT_TRUE(WaitForWindowActive(&window));
}

FarSides DeckRig::Sides() {
    FarSides sides = setUp.Sides();
    sides.Notices = &notices;
    sides.HeldKeys = &heldKeys;
    return sides;
}

void DeckRig::Settle() {
    for (int round = 0; round < Rounds; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

void DeckRig::CloseByHand() { CloseFromTheFrame(&window); }

void DeckRig::ConnectAll() {
    tessaly.LinkStart();
    setUp.SimulatorLink.SetLink(LinkState::Up);
    setUp.NetworkLink.SetLink(LinkState::Up);
    setUp.NetworkLink.StartSession();
    Settle();
    events.clear();
}

void DeckRig::TurnTo(QWidget& widget) {
    auto& pages = At<QTabWidget>("DeckPages");
    for (int index = 0; index < pages.count(); ++index)
        if (pages.widget(index)->isAncestorOf(&widget)) pages.setCurrentIndex(index);
}

void DeckRig::Click(const char* name) {
    auto& widget = At<QWidget>(name);
    TurnTo(widget);
    // A check box takes clicks on its box and its text, not beside them.
    const QPoint place = qobject_cast<QCheckBox*>(&widget) ? QPoint(8, widget.height() / 2) : widget.rect().center();
    ClickMouse(&widget, Qt::LeftButton, {}, place);
    Settle();
}

void DeckRig::Type(const char* name, const QString& text) {
    auto& edit = At<QLineEdit>(name);
    TurnTo(edit);
    ClickMouse(&edit, Qt::LeftButton);
    edit.selectAll();
    TypeText(&edit, text);
    if (text.isEmpty()) ClickKey(&edit, Qt::Key_Delete);
    ClickKey(&edit, Qt::Key_Return);
    Settle();
}

void DeckRig::Pick(const char* name, int index) {
    auto& box = At<QComboBox>(name);
    TurnTo(box);
    box.setFocus();
    ClickKey(&box, Qt::Key_Home);
    for (int step = 0; step < index; ++step) ClickKey(&box, Qt::Key_Down);
    Settle();
}

QString DeckRig::TextOf(const char* name) { return At<QLabel>(name).text(); }

std::vector<std::string> DeckRig::TakeEvents() { return std::exchange(events, {}); }

void DeckRig::WriteDownEvents() {
    const auto note = [this](std::string name) { return [this, name = std::move(name)] { events.push_back(name); }; };
    const auto noteNumber = [this](std::string name) {
        return [this, name = std::move(name)](Long number) { events.push_back(name + " " + std::to_string(number)); };
    };
    const auto noteInput = [this](std::string name) {
        return [this, name = std::move(name)](Long, Long, const std::string& input, const std::string&) {
            events.push_back(name + " " + input);
        };
    };
    velmarc.Connected = note("simulator connected");
    velmarc.Disconnected = note("simulator disconnected");
    velmarc.ServerFound = [this](const std::string& name) { events.push_back("simulator found " + name); };
    velmarc.FSKeyDown = [this](bool repeat, bool active, const std::string& key, const std::string& sequence) {
        events.push_back("key down " + key + " in " + sequence + (repeat ? " repeat" : "") +
                         (active ? "" : " inactive"));
    };
    velmarc.FSKeyUp = noteInput("key up");
    velmarc.FSJoyDown = noteInput("button down");
    velmarc.FSJoyUp = noteInput("button up");

    tessaly.Connected = note("network connected");
    tessaly.Disconnected = note("network disconnected");
    tessaly.ServerFound = [this](const std::string& name) { events.push_back("network found " + name); };
    tessaly.SessionOpened = note("session opened");
    tessaly.SessionClosed = note("session closed");
    tessaly.SessionStatusChanged = note("session status changed");
    tessaly.RadioChanged = note("radio changed");
    tessaly.RadioVoiceChanged = noteNumber("radio voice changed");
    tessaly.CallsignChanged = note("callsign changed");
    tessaly.InterfaceAppeared = noteNumber("record appeared");
    tessaly.InterfaceChanged = noteNumber("record changed");
    tessaly.InterfaceRemoved = noteNumber("record removed");
    tessaly.InterfaceParamChanged = [this](Long id, Long index) {
        events.push_back("parameter changed " + std::to_string(id) + "/" + std::to_string(index));
    };

    auto& engine = setUp.VVL;
    engine.VVL_Started = note("engine started");
    engine.VVL_Stopped = note("engine stopped");
    engine.VVL_RoomJoinSucceed = noteNumber("join succeeded");
    engine.VVL_RoomJoinFailed = noteNumber("join failed");
    engine.VVL_RoomKicked = noteNumber("kicked");
    engine.VVL_RoomLeft = noteNumber("left");
    engine.VVL_RoomAudioStarted = noteNumber("room audio started");
    engine.VVL_RoomAudioStopped = noteNumber("room audio stopped");
    engine.VVL_RoomStatusChanged = noteNumber("room status changed");

    setUp.VolumeControl.InputOpened = note("input opened");
    setUp.VolumeControl.InputClosed = note("input closed");
    setUp.VolumeControl.OutputOpened = note("output opened");
    setUp.VolumeControl.OutputClosed = note("output closed");
    setUp.VolumeControl.MasterVolumeChanged = note("master moved");
    notices.Told = [this](const std::string& sentence) { events.push_back("notice " + sentence); };
}

}  // namespace orvelle
