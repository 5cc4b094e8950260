#include "apps/Road.h"

#include <QAbstractButton>
#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <array>
#include <iostream>

#include "adapters/looks/Text.h"
#include "adapters/shared/ScanCodes.h"
#include "apps/PanelPages.h"
#include "apps/Waiting.h"

namespace orvelle {

namespace {

constexpr const char* RoadKey = "F8";

struct Page {
    PanelNumber Panel;
    const char* Node;  // of the tree; null where none leads to the page
    const char* Picture;
};

constexpr std::array<Page, PanelCount> Pages{{{OverviewPanel, "Config", "overview"},
                                              {SimulatorLinkPanel, "Velmarc", "simulator-link"},
                                              {RogerWilcoPanel, "RogerWilco", "rogerwilco"},
                                              {TeamSpeakPanel, "Teamspeak", "teamspeak"},
                                              {JoyToKeyPanel, "Joy to Key", "joy-to-key"},
                                              {VatsimVoicePanel, "VATSIM", "vatsim-voice"},
                                              {VolumesPanel, "Volumes", "volumes"},
                                              {KeyToKeyPanel, "Key to Key", "key-to-key"},
                                              {FrameworkLinkPanel, "Kestrine", "framework-link"},
                                              {OptionsPanel, "Options", "options"},
                                              {VoiceAtisPanel, nullptr, "voice-atis"},
                                              {ExtraPanel, "Extra", "extra"},
                                              {VatsimKeysPanel, "Key mappings", "vatsim-keys"}}};

}  // namespace

Road::Road(PanelProgram& panelProgram, const QString& workFolder, const QString& pictureFolder)
    : house(panelProgram), pictures(pictureFolder), voiceProgram(workFolder) {
    pictures.mkpath(".");
}

void Road::Prepare() {
    voiceProgram.Enter(house.Settings.Store);
    house.Settings.Store.SaveSettingLong("OrvelleCP", "VoiceTuningSound", 1);
    house.Settings.Store.HandlerEnded();
}

bool Road::Step(const std::string& told, const std::function<void()>& act, const std::function<bool()>& isDone) {
    act();
    const bool done = WaitUntil(isDone);
    std::cout << (done ? "  " : "  NOT SO: ") << told << std::endl;
    return done;
}

bool Road::Play() {
    FrmOrvelle& panel = house.Panel;
    embedded::SimulatorLink& simulator = house.Outside.Practice.SimulatorLink;
    embedded::NetworkLink& network = house.Outside.Practice.NetworkLink;
    const auto click = [this](const char* name) { house.Desktop.Window().findChild<QAbstractButton*>(name)->click(); };
    const auto keyIsDown = [this] {
        return keys.KeysDown() == std::vector<int>{LinuxKeyOfScanCode(VoiceStandIn::TalkKey)};
    };
    const std::string join =
        voiceProgram.File() + " /join1 voice.example/tower /priority high /netspeed 2 /callsign ABC123";
    const std::string leave = voiceProgram.File() + " /leave";

    const bool played =
        Step(
            "The panel's window and its tray icon are there, and the flight deck beside them.", [] {},
            [this] { return house.Desktop.Window().isVisible() && house.Deck && house.Deck->isVisible(); }) &&
        Step(
            "The simulator link is up: \"FS with Velmarc is up and running\"",
            [&] { simulator.SetLink(LinkState::Up); },
            [&] { return panel.StatusVelmarc.Caption == "FS with Velmarc is up and running"; }) &&
        Step(
            "The framework link is up and the session is open: \"You are connected multiplayer\"",
            [&] {
                network.SetLink(LinkState::Up);
                network.SetCallsign("ABC123");
                network.SetStatus(ConnectedToMultiplayer);
                network.SetReceive(SelectsCom1);
                network.SetTransmit(SelectsCom1);
                network.StartSession();
            },
            [&] { return panel.StatusMainUser.Caption == "You are connected multiplayer"; }) &&
        Step(
            "RogerWilco is ticked, and this computer holds its two roles.",
            [&] {
                panel.twCategory.UserClick(*panel.twCategory.Find("RogerWilco"));
                click("RWEnable");
            },
            [&] { return panel.Variables().RWCom1 != 0 && panel.Variables().RWCom2 != 0; }) &&
        Step(
            "The key F8 of the simulator's computer is mapped to push-to-talk.",
            [&] {
                click("RWKeySet");
                simulator.PressKey(RoadKey);
                simulator.ReleaseKey(RoadKey);
            },
            [&] { return panel.Variables().RWFSKey == RoadKey; }) &&
        Step(
            "COM1 is tuned to a RogerWilco channel, and the voice program was started: " + join,
            [&] {
                network.SetFrequency(0, "118.300");
                network.SetVoice(0, {RogerWilco, "voice.example", "tower", "", ""});
            },
            [&] { return voiceProgram.Calls() == join; }) &&
        Step(
            std::string("F8 goes down over there, and the talk key goes down here, as another X client sees: ") +
                panel.RWPTTKeyDisplay.Text(),
            [&] { simulator.PressKey(RoadKey); }, keyIsDown) &&
        Step(
            "F8 comes up, and the talk key is up.", [&] { simulator.ReleaseKey(RoadKey); },
            [this] { return keys.KeysDown().empty(); }) &&
        Step(
            "COM1 is tuned away, and the voice program was told to leave: " + leave, [&] { network.SetVoice(0, {}); },
            [&] { return voiceProgram.Calls() == join + "\n" + leave; }) &&
        Step(
            "COM1 is tuned back.",
            [&] {
                network.SetVoice(0, {RogerWilco, "voice.example", "tower", "", ""});
            },
            [&] { return panel.Variables().ActiveVoiceSoftware == RogerWilco; });
    TakePictures();
    return played;
}

void Road::TakePictures() {
    Settle();
    QScreen& screen = *QGuiApplication::primaryScreen();
    const QPixmap desktop = screen.grabWindow(0);
    desktop.save(pictures.filePath("desktop.png"));
    constexpr QSize TrayCorner(24, 32);  // the place of the one icon
    desktop.copy(QRect(QPoint(desktop.width() - TrayCorner.width(), 0), TrayCorner))
        .scaled(TrayCorner * 8)
        .save(pictures.filePath("tray-icon.png"));
    for (const Page& page : Pages) {
        // The tree has no node for some while the media players are away; the panel takes one from beside the tree.
        TreeNode beside;
        beside.Tag = std::to_string(page.Panel);
        TurnToPage(house, page.Node != nullptr ? *house.Panel.twCategory.Find(page.Node) : beside);
        const QString name = QStringLiteral("panel-%1-%2.png").arg(page.Panel, 2, 10, QChar('0')).arg(page.Picture);
        house.Desktop.Window().grab().save(pictures.filePath(name));
    }
    house.Deck->grab().save(pictures.filePath("flight-deck.png"));
    std::cout << "  Pictures: " << FromQt(pictures.absolutePath()) << std::endl;
}

}  // namespace orvelle
