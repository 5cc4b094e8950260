// The simulator's computer of the story, c01: orvelle-sim without its window, on this program's own display, with the
// set-up that it makes and the broker that it brings. What the window would be used for is done by hand: the session is
// set through the broker, and keys are struck on the display's keyboard, where orvelle-sim reads them.
#pragma once

#include <QDir>
#include <QProcess>
#include <QProcessEnvironment>
#include <memory>
#include <string>

#include "apps/UserStrokes.h"
#include "apps/three/SetUpWatch.h"

namespace orvelle {

class SimulatorsComputer {
public:
    // Keeps everything in `folder`, which is made.
    SimulatorsComputer(EventLoop& loop, const QDir& folder);
    SimulatorsComputer(const SimulatorsComputer&) = delete;
    SimulatorsComputer& operator=(const SimulatorsComputer&) = delete;
    ~SimulatorsComputer();

    // What orvelle-sim finds in its environment: at first what this process has.
    QProcessEnvironment Environment = QProcessEnvironment::systemEnvironment();
    void Start();
    // The set-up is made, its broker serves, and both links are offered. From then on there is a watch.
    bool Serves();
    SetUpWatch& Watch() { return *watch; }
    int Port() const { return port; }

    // Has orvelle-sim make a code for the next computer. It is there when the errand has ended well; else "".
    void AskForCode();
    std::string Code();

    // The user's session, with COM1 tuned to a RogerWilco channel.
    void OpenSession();
    void PressTalkKey() { keyboard.Press(F8); }
    void ReleaseTalkKey() { keyboard.Release(F8); }

private:
    static constexpr int F8 = 66 + 8;  // of linux/input-event-codes.h, as X servers count

    EventLoop& loop;
    const QString folder;
    const int port;
    UserStrokes keyboard{""};
    QProcess program;
    std::unique_ptr<QProcess> adding;
    std::unique_ptr<SetUpWatch> watch;
};

}  // namespace orvelle
