// A pilot of the story: a virtual display, where orvelle-sim reads the keyboard and the panel shows its window, each as
// a computer of one set-up of this pilot's own. VATSIM Voice is ticked, with F8 as push-to-talk. All ends with the
// object.
#pragma once

#include <QDir>
#include <QProcess>
#include <memory>
#include <string>

#include "apps/UserStrokes.h"
#include "apps/three/SetUpWatch.h"
#include "apps/three/VirtualComputer.h"
#include "platform/EventLoop.h"

namespace orvelle {

class Pilot {
public:
    // `number` from 0, also that of the pilot's sound devices. Nobody else writes to `folder`, which is made.
    // `displayScript` is tests/with-display.
    Pilot(EventLoop& loop, std::size_t number, const QDir& folder, const QString& displayScript);
    Pilot(const Pilot&) = delete;
    Pilot& operator=(const Pilot&) = delete;
    ~Pilot();

    std::string Callsign() const;
    QString RunFolder() const { return computer.RunFolder(); }

    void SwitchOn() { computer.SwitchOn(); }  // the display
    bool IsOn();
    void StartSimulator();
    bool SimulatorServes();
    void Join();  // the panel's computer, by a code that is made for it
    bool HasJoined();
    void StartPanel();
    // It is there and holds the duty of the voice engine.
    bool HasEngine();
    // COM1, on the channel of a voice server.
    void Tune(const std::string& server, const std::string& channel);
    void PressTalkKey() { keyboard->Press(F8); }
    void ReleaseTalkKey() { keyboard->Release(F8); }

    // Where the panel is.
    QImage Screen() const;

private:
    static constexpr int F8 = 66 + 8;  // of linux/input-event-codes.h, as X servers count

    void SetUpPanel();
    void PassOnWhatItSays();
    QString SetUpFolder() const { return computer.Home.filePath("c01"); }

    EventLoop& loop;
    const std::size_t number;
    VirtualComputer computer;
    const int port;
    std::unique_ptr<UserStrokes> keyboard;
    std::unique_ptr<SetUpWatch> watch;
    QProcess simulator;
    QProcess adding;
    bool isJoining = false;
    QProcess panel;
};

}  // namespace orvelle
