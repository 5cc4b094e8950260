// The window of the simulator's program: the set-up with its computers, what is held on this one, and the deck's
// own boxes by which session and radios are set by hand. Closing it minimises it; the program goes on.
#pragma once

#include <QWidget>

#include "platform/Ticket.h"

class QLabel;
class QListWidget;
class QPushButton;

namespace orvelle {

class SimulatorProgram;

class SimulatorWindow : public QWidget {
public:
    // The program outlives the window; its ComputersChanged and DevicesChanged are the window's.
    explicit SimulatorWindow(SimulatorProgram& simulatorProgram);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QWidget* NewSetUpPart();
    void AddComputer();
    void RemoveComputer();
    int SelectedComputer() const;  // the number of its identity, 0 for none
    void ShowAll();
    void ShowComputers();

    SimulatorProgram& program;
    QLabel* name;
    QListWidget* computers;
    QPushButton* remove;
    QLabel* code;
    QLabel* held;
    QLabel* joysticks;
    QLabel* refused;
    Ticket watch;
};

}  // namespace orvelle
