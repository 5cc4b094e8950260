#include "apps/three/Computer.h"

#include <algorithm>
#include <csignal>

#include "adapters/mqtt/Topics.h"
#include "adapters/store/SqliteStore.h"
#include "apps/three/ChildPrograms.h"

namespace orvelle {

Computer::Computer(EventLoop& loop, int identity, const QDir& folder, const QString& displayScript)
    : Identity(identity), Desktop(folder, displayScript), voiceProgram(Desktop.Home) {
    SetUpPanel(loop);
}

Computer::~Computer() {
    if (standsStill) BreakDown();
    EndChild(panel);
    SwitchOff();
}

std::string Computer::Name() const { return mqtt::WriteIdentity(Identity); }

void Computer::SetUpPanel(EventLoop& loop) {
    store::SqliteStore settings(loop, Desktop.SettingsFile(), [](const std::string&) {});
    voiceProgram.Enter(settings);
    settings.SaveSettingLong("OrvelleCP", "RWEnable", 1);
    settings.SaveSettingLong("OrvelleCP", "RWDriven", 1);  // COM1 alone
    settings.SaveSettingString("OrvelleCP", "RWFSKey", "F8");
    settings.HandlerEnded();
}

bool Computer::IsOn() {
    if (!Desktop.IsOn()) return false;
    if (!keys) {
        keys = std::make_unique<KeyWatch>(Desktop.Display());
        windows = std::make_unique<TopLevelWindows>(Desktop.Display());
    }
    return true;
}

void Computer::StartPanel() { Desktop.Run(panel, "orvelle-panel", {}); }

bool Computer::ShowsPanel() {
    return windows && std::ranges::any_of(windows->List(), [this](xcb_window_t window) {
               return windows->ProcessOf(window) == panel.processId() &&
                      windows->StateOf(window) == TopLevelWindows::State::Normal;
           });
}

void Computer::StandStill() {
    kill(-Desktop.Group(), SIGSTOP);
    standsStill = true;
}

// What is left, the servers of its display, may tidy up.
void Computer::BreakDown() {
    panel.kill();
    panel.waitForFinished();
    kill(-Desktop.Group(), SIGCONT);
    standsStill = false;
    SwitchOff();
}

void Computer::SwitchOff() {
    keys.reset();
    windows.reset();
    Desktop.SwitchOff();
}

std::vector<int> Computer::KeysDown() const { return keys ? keys->KeysDown() : std::vector<int>{}; }

}  // namespace orvelle
