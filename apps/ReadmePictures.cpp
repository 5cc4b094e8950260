#include "apps/ReadmePictures.h"

#include <QAbstractButton>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPixmap>
#include <QScreen>
#include <QTimer>
#include <array>
#include <functional>
#include <iostream>
#include <utility>

#include "apps/PanelPages.h"
#include "apps/SimulatorPicture.h"
#include "apps/UserStrokes.h"
#include "apps/Waiting.h"
#include "deck/FirstFlight.h"

namespace orvelle {

namespace {

constexpr const char* TalkKey = "F9";
constexpr int CapturedKey = 96;    // F12, as the X server numbers it
constexpr QSize TrayIcon(24, 26);  // the place of the one icon, in the upper right corner
constexpr int TrayScale = 4;

struct Row {
    const char* Input;
    const char* Keys;  // scan codes
    const char* Manner;
};

constexpr std::array KeyRows{Row{"F2", "29+50", "Push"},     Row{"F3", "29+56+20", "Push"},
                             Row{"Ctrl+F4", "57", "Toggle"}, Row{"Shift+Num 5", "42+30", "Push"},
                             Row{"Alt+R", "88", "Push"},     Row{"Tab", "29+31", "Push"}};
constexpr std::array ButtonRows{Row{"Stick.Button 2", "57", "Push"}, Row{"Stick.Button 4", "29+50", "Toggle"},
                                Row{"Throttle.Button 1", "87", "Push"}, Row{"Throttle.Button 3", "42+19", "Push"}};

template <std::size_t Count>
void SaveRows(SettingsStore& store, const std::array<Row, Count>& rows, const std::string& table,
              const std::string& inputKey, const std::string& keysKey) {
    int number = 0;
    for (const Row& row : rows) {
        const std::string section = "OrvelleCP\\" + table + "\\" + std::to_string(++number);
        store.SaveSettingString(section, inputKey, row.Input);
        store.SaveSettingString(section, keysKey, row.Keys);
        store.SaveSettingString(section, "Toggle", row.Manner);
    }
}

bool IsShown(const QWidget& window) { return window.isVisible() && window.windowHandle()->isExposed(); }

bool Tell(const char* told, bool isReached) {
    if (!isReached) std::cerr << "OrvelleCP: this was not reached: " << told << std::endl;
    return isReached;
}

bool Reach(const char* told, const std::function<void()>& act, const std::function<bool()>& isDone) {
    act();
    return Tell(told, WaitUntil(isDone));
}

}  // namespace

ReadmePictures::ReadmePictures(PanelProgram& panelProgram, const QDir& pictureFolder, QString palette)
    : house(panelProgram), folder(pictureFolder), ending("-" + std::move(palette) + ".png") {
    folder.mkpath(".");
}

void ReadmePictures::Prepare() {
    SettingsStore& store = house.Settings.Store;
    for (const char* enable : {"VVLEnable", "TSEnable", "VoiceTuningSound"})
        store.SaveSettingLong("OrvelleCP", enable, 1);
    for (const auto& [key, text] : {std::pair("TSPath", "/usr/bin/teamspeak"), std::pair("TSFSKey", "F10"),
                                    std::pair("TSFSJoy", "Stick.Button 1"), std::pair("VVLFSKey", TalkKey)})
        store.SaveSettingString("OrvelleCP", key, text);
    SaveRows(store, KeyRows, "Key2Key", "K2KFSKey", "K2KKey");
    SaveRows(store, ButtonRows, "Joy2Key", "J2KJoy", "J2KKey");
    store.HandlerEnded();
}

bool ReadmePictures::PlayFlight() {
    FrmOrvelle& panel = house.Panel;
    embedded::SetUp& practice = house.Outside.Practice;
    UserStrokes strokes("");
    return Reach(
               "panel and deck are shown", [&] { PrepareFirstFlight(practice.Sides()); },
               [&] { return IsShown(house.Desktop.Window()) && house.Deck && IsShown(*house.Deck); }) &&
           Reach(
               "the talk key of TeamSpeak is taken",
               [&] {
                   panel.twCategory.UserClick(*panel.twCategory.Find("Teamspeak"));
                   house.Desktop.Window().activateWindow();
                   WaitUntil([&] { return house.Desktop.Window().isActiveWindow(); });
                   // The click returns when the capture is over; while it lasts, its field tells the seconds left.
                   const auto& field = *house.Desktop.Window().findChild<QLineEdit*>("TSPTTKeyDisplay");
                   QTimer look;
                   look.callOnTimeout([&] {
                       if (field.actions().isEmpty()) return;
                       look.stop();
                       strokes.Press(CapturedKey);
                       strokes.Release(CapturedKey);
                   });
                   look.start(20);
                   house.Desktop.Window().findChild<QAbstractButton*>("TSPTTKeySet")->click();
               },
               [&] { return panel.TSPTTKeyDisplay.Text == "F12"; }) &&
           Reach(
               "COM1 is in its room and talks",
               [&] {
                   practice.NetworkLink.SetReceive(SelectsBoth);
                   practice.NetworkLink.SetVoice(0, {VatsimVoice, "voice.example.net", "lowi_twr", "1234567", ""});
                   practice.NetworkLink.SetVoice(1, {TeamSpeakHost, "ts.example.net", "Innsbruck Ground", "", ""});
                   WaitUntil([&] { return practice.VVL.Room(0).Presence == RoomPresence::In; });
                   practice.VolumeControl.Move(MixerLine::Microphone, 70);
                   practice.VolumeControl.Move(MixerLine::Master, 85);
                   practice.SimulatorLink.PressKey(TalkKey);
               },
               [&] { return !practice.VVL.Room(0).Muted && practice.SimulatorLink.HeldSequence() == TalkKey; });
}

bool ReadmePictures::TakePage(const char* node, const char* name) {
    if (!Tell(name, TurnToPage(house, *house.Panel.twCategory.Find(node)))) return false;
    Keep(house.Desktop.Window().grab(), name);
    return true;
}

bool ReadmePictures::Take() {
    if (!PlayFlight()) return false;
    for (const auto& [node, name] :
         {std::pair("Teamspeak", "teamspeak"), std::pair("VATSIM", "vatsim"), std::pair("Volumes", "volumes"),
          std::pair("Key mappings", "vatsim-keys"), std::pair("Joy to Key", "joy-to-key"),
          std::pair("Key to Key", "key-to-key"), std::pair("Config", "overview")})
        if (!TakePage(node, name)) return false;
    Settle();
    Keep(house.Deck->grab(), "deck");
    const QPixmap screen = QGuiApplication::primaryScreen()->grabWindow(0);
    Keep(screen.copy(house.Desktop.Window().frameGeometry() | house.Deck->frameGeometry()), "desktop");
    Keep(screen.copy(QRect(QPoint(screen.width() - TrayIcon.width(), 0), TrayIcon)).scaled(TrayIcon * TrayScale),
         "tray");
    return TakeSimulatorPicture(folder, ending);
}

void ReadmePictures::Keep(const QPixmap& picture, const QString& name) const {
    picture.save(folder.filePath(name + ending));
}

}  // namespace orvelle
