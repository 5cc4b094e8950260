// The simulator's side: its link, keyboard and joysticks with what they make heard, the sounds that it was asked to
// play, and what became of the voice programs that the panel started on this computer.
#pragma once

#include <QWidget>
#include <cstddef>

#include "platform/Ticket.h"

class QCheckBox;

namespace orvelle {
class SimulatorSide;
struct FarSides;
}  // namespace orvelle

namespace orvelle::deck {

class TimedLog;

class SimulatorPage : public QWidget {
public:
    // The simulator is there.
    explicit SimulatorPage(const FarSides& sides);

    void TellOfProgram(const QString& sentence);

private:
    void ShowState();

    SimulatorSide& simulator;
    QCheckBox* active;
    TimedLog* sounds;
    TimedLog* programs;
    std::size_t soundsShown = 0;
    Ticket watch;
};

}  // namespace orvelle::deck
