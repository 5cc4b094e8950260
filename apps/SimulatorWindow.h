// The window of the simulator's program: a page with the set-up and this computer's part in it, one with the deck's own
// boxes by which session and radios are set by hand while no simulator sets them, and one with what simulators and
// directories of voice channels came to. With an icon in the notification area closing the window hides
// it, and the program goes on; where the desktop has no such area it is a window like any other, whose closing ends the
// program after a question.
#pragma once

#include <QWidget>
#include <string>

#include "apps/SimulatorTray.h"
#include "platform/Event.h"
#include "platform/Ticket.h"

namespace orvelle {

class SimulatorPage;
class SimulatorProgram;
class SimulatorSetUpPage;

namespace deck {
class NetworkPage;
}  // namespace deck

class SimulatorWindow : public QWidget {
public:
    // The program outlives the window; its SetUpChanged and DevicesChanged are the window's, and so is the Changed
    // of its parts.
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
    void ShowSimulator();
    void ShowRuler();
    QString Tip() const;

    SimulatorProgram& program;
    SimulatorTray tray;
    SimulatorSetUpPage* setUp;
    deck::NetworkPage* radios;
    SimulatorPage* simulator;
    Ticket watch;
};

}  // namespace orvelle
