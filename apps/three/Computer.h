// A computer of the story with a panel: a virtual display with window manager, tray and session bus, and a home that
// stays when it is switched off. RogerWilco is ticked for COM1 there, with F8 of the simulator's computer as
// push-to-talk and a stand-in in the place of the voice program. All ends with the object.
#pragma once

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QString>
#include <memory>
#include <string>
#include <vector>

#include "adapters/x11/TopLevelWindows.h"
#include "apps/KeyWatch.h"
#include "apps/VoiceStandIn.h"
#include "platform/EventLoop.h"

namespace orvelle {

class Computer {
public:
    // `displayScript` is tests/with-display. Nobody else writes to `folder`, which is made.
    Computer(EventLoop& loop, int identity, const QDir& folder, const QString& displayScript);
    Computer(const Computer&) = delete;
    Computer& operator=(const Computer&) = delete;
    ~Computer();

    const int Identity;
    std::string Name() const;  // "c02"

    void SwitchOn();  // its display
    bool IsOn();      // from when that is there
    // By the code that was made for it: orvelle-setup. The broker may take it only a moment after it was made, so it is
    // typed again until it is taken.
    void Join(const std::string& code, int brokerPort);
    bool HasJoined();
    const std::string& SaidOfJoining() const { return saidOfJoining; }
    void StartPanel();
    bool ShowsPanel();  // its window is on the display

    // In one instant, as one whose power is cut: no program of it goes on, or says goodbye.
    void StandStill();
    // After that, for good: its panel is killed where it stands.
    void BreakDown();

    QImage Screen() const;  // none while it is off
    std::vector<int> KeysDown() const;
    std::string VoiceCalls() const { return voiceProgram.Calls(); }

private:
    void SetUpPanel(EventLoop& loop);
    void Run(QProcess& program, const QString& file, const QStringList& words);
    void SwitchOff();

    const QDir home;
    const QString script;
    VoiceStandIn voiceProgram;
    QString display;  // "" while it is off
    QString sessionBus;
    std::unique_ptr<KeyWatch> keys;
    std::unique_ptr<TopLevelWindows> windows;
    QProcess desktop;
    bool standsStill = false;
    QProcess joining;
    QStringList joiningWords;
    std::string saidOfJoining;
    QProcess panel;
};

}  // namespace orvelle
