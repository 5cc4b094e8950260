// The window of the simulator's program: a page with the set-up and this computer's part in it, and one with the deck's
// own boxes by which session and radios are set by hand. With an icon in the notification area closing the window hides
// it, and the program goes on; where the desktop has no such area it is a window like any other, whose closing ends the
// program after a question.
#pragma once

#include <QWidget>
#include <string>

#include "apps/SimulatorTray.h"
#include "platform/Event.h"
#include "platform/Ticket.h"

namespace orvelle {

class SimulatorProgram;
class SimulatorSetUpPage;

class SimulatorWindow : public QWidget {
public:
    // The program outlives the window; its SetUpChanged and DevicesChanged are the window's.
    explicit SimulatorWindow(SimulatorProgram& simulatorProgram);

    // A sentence for the user: in the window, and while that is hidden by the icon, too.
    void Tell(const std::string& sentence);
    // Shows it before all others.
    void BringUp();
    SimulatorTray& Tray() { return tray; }

    Event<> EndAsked;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void AskToEnd();
    void ShowState();
    QString Tip() const;

    SimulatorProgram& program;
    SimulatorTray tray;
    SimulatorSetUpPage* setUp;
    Ticket watch;
};

}  // namespace orvelle
