// The computers of the set-up in the window of the simulator's program: who is there with which programs, which voice
// roles their panels hold, which links they serve; and where this computer made the set-up, adding and removing.
#pragma once

#include "deck/fields/Section.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;

namespace orvelle {

class SimulatorProgram;

class ComputersBox : public deck::Section {
public:
    // The program outlives the box.
    explicit ComputersBox(SimulatorProgram& simulatorProgram);

    void ShowState();

private:
    void Add();
    void AskToRemove();
    void Remove(int identity);
    int Selected() const;  // the number of its identity, 0 for none
    void ShowComputer(int row, int identity);

    SimulatorProgram& program;
    QTableWidget* table;
    QPushButton* add;
    QPushButton* remove;
    QLineEdit* code;
    int codeOf = 0;  // the computer that was added last
    QLabel* answer;
};

}  // namespace orvelle
