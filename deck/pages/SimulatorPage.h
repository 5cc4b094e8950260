// The simulator's side: its link, keyboard and joysticks with what they make heard, the sounds that it was asked to
// play, and what became of the voice programs that the panel started on this computer.
#pragma once

#include <QWidget>
#include <cstddef>

#include "platform/Ticket.h"

class QCheckBox;

namespace orvelle {
class EmbeddedVelmarc;
class EmbeddedVoiceEngine;
}  // namespace orvelle

namespace orvelle::deck {

class TimedLog;

class SimulatorPage : public QWidget {
public:
    SimulatorPage(EmbeddedVelmarc& simulator, EmbeddedVoiceEngine& engine);

    void TellOfProgram(const QString& sentence);

private:
    void ShowState();

    EmbeddedVelmarc& velmarc;
    QCheckBox* active;
    TimedLog* sounds;
    TimedLog* programs;
    std::size_t soundsShown = 0;
    Ticket watch;
};

}  // namespace orvelle::deck
