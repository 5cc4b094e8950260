// The two computers of a pilot who talks by a joystick: the simulator's, where orvelle-sim reads it and brings the
// set-up's broker, and the panel's, which has joined the set-up, with VATSIM Voice ticked and the joystick's button as
// push-to-talk. For bench/press-to-ear. All ends with the object.
#pragma once

#include <QDir>
#include <QProcess>
#include <functional>
#include <string>

#include "apps/three/SimulatorsComputer.h"
#include "apps/three/VirtualComputer.h"
#include "bench/TalkButton.h"

namespace orvelle {

// Of the panel's computer: the sound server's names.
struct PanelSound {
    std::string Server;
    std::string Microphone;
    std::string Headset;
};

class TalkSetUp {
public:
    // Nobody else writes to `folder`. `displayScript` is tests/with-display.
    TalkSetUp(EventLoop& loop, const QDir& folder, const QString& displayScript, const PanelSound& sound);
    TalkSetUp(const TalkSetUp&) = delete;
    TalkSetUp& operator=(const TalkSetUp&) = delete;
    ~TalkSetUp();

    static constexpr const char* Callsign = "ABC123";

    // Returns when the panel holds the voice engine's duty: "" then, else what did not come.
    std::string Begin();
    // COM1, on the channel of a voice server.
    void Tune(const std::string& server, const std::string& channel);

    TalkButton Button;
    SetUpWatch& Watch() { return simulator.Watch(); }

private:
    static void SetUpPanel(EventLoop& loop, const std::string& settingsFile);

    SimulatorsComputer simulator;
    VirtualComputer computer;
    QProcess panel;
};

}  // namespace orvelle
