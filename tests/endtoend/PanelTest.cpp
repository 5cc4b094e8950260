#include "tests/endtoend/PanelTest.h"

#include <QFile>
#include <QWindow>
#include <stdexcept>

namespace orvelle {

PanelTest::PanelTest() {
    QFile script(QString::fromStdString(VoiceProgram()));
    if (!script.open(QFile::WriteOnly)) throw std::runtime_error("the stand-in voice program cannot be written");
    // A line in one write, as two calls may write at one time.
    script.write(
        "#!/bin/sh\nline='|'\nfor word; do line=\"$line$word|\"; done\nprintf '%s\\n' \"$line\" "
        ">>\"${0%/*}/commands\"\n");
    script.close();
    script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    store::SqliteStore& store = house.Settings.Store;
    store.SaveSettingString("OrvelleCP", "RWPath", '"' + VoiceProgram() + '"');
    store.SaveSettingString("OrvelleCP", "RWPTTKey", std::to_string(TalkKeyCode));
    store.HandlerEnded();
}

void PanelTest::Open() {
    ASSERT_NO_FATAL_FAILURE(Show());
    // Side by side, so that nothing hides what is clicked.
    house.Deck->move(0, house.Desktop.Window().frameGeometry().bottom() + 1);
}

void PanelTest::Show() {
    house.Open();
    // The window manager gives a window the focus when it shows it, which must not come between what is done later.
    ASSERT_TRUE(ComesTrue([this] { return house.Deck && IsSeen(*house.Deck) && IsSeen(house.Desktop.Window()); }));
}

bool PanelTest::IsSeen(const QWidget& window) {
    return window.isVisible() && window.windowHandle() && window.windowHandle()->isExposed();
}

void PanelTest::Connect() {
    embedded::NetworkLink& network = house.Outside.Practice.NetworkLink;
    house.Outside.Practice.SimulatorLink.SetLink(LinkState::Up);
    network.SetLink(LinkState::Up);
    network.SetCallsign("ABC123");
    network.SetStatus(1);
    network.SetReceive("1");
    network.SetTransmit("1");
    network.StartSession();
    ASSERT_TRUE(ComesTrue([this] { return panel.Variables().SessionHandle != 0 && panel.Panels(4).Enabled; }));
}

void PanelTest::ShowPage(const char* node) { panel.twCategory.UserClick(*panel.twCategory.Find(node)); }

QWidget& PanelTest::OfPanel(const char* name) { return Find(house.Desktop.Window(), name); }

QWidget& PanelTest::OfDeck(const char* name) { return Find(*house.Deck, name); }

QWidget& PanelTest::Find(QWidget& window, const char* name) {
    auto* widget = window.findChild<QWidget*>(name);
    if (widget == nullptr) throw std::runtime_error(std::string("no widget ") + name);
    ToFront(window);
    return *widget;
}

void PanelTest::ToFront(QWidget& window) {
    user.Do({"windowactivate", "--sync", QString::number(window.winId())});
    EXPECT_TRUE(ComesTrue([&] { return window.isActiveWindow(); }));
}

std::string PanelTest::VoiceCommands() const {
    QFile commands(folder.filePath("commands"));
    return commands.open(QFile::ReadOnly) ? commands.readAll().toStdString() : "";
}

}  // namespace orvelle
