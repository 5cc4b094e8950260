// A computer of the story with a panel, which can be stopped and broken in one instant. RogerWilco is ticked for COM1
// there, with F8 of the simulator's computer as push-to-talk and a stand-in in the place of the voice program. All ends
// with the object.
#pragma once

#include <QDir>
#include <QProcess>
#include <memory>
#include <string>
#include <vector>

#include "adapters/x11/TopLevelWindows.h"
#include "apps/KeyWatch.h"
#include "apps/VoiceStandIn.h"
#include "apps/three/VirtualComputer.h"
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

    VirtualComputer Desktop;

    bool IsOn();  // from when its display is there
    void StartPanel();
    bool ShowsPanel();  // its window is on the display

    // In one instant, as one whose power is cut: no program of it goes on, or says goodbye.
    void StandStill();
    // After that, for good: its panel is killed where it stands.
    void BreakDown();

    std::vector<int> KeysDown() const;
    std::string VoiceCalls() const { return voiceProgram.Calls(); }

private:
    void SetUpPanel(EventLoop& loop);
    void SwitchOff();

    VoiceStandIn voiceProgram;
    std::unique_ptr<KeyWatch> keys;
    std::unique_ptr<TopLevelWindows> windows;
    bool standsStill = false;
    QProcess panel;
};

}  // namespace orvelle
