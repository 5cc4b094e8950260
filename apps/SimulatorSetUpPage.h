// The first page of the simulator's program: which set-up it serves, its broker, its computers, the two links, what is
// held on this computer, and what there was to tell.
#pragma once

#include <QWidget>

class QCheckBox;

namespace orvelle {

class ComputersBox;
class SimulatorProgram;

namespace deck {
class Readout;
class Section;
class SignalLight;
class TextField;
class TimedLog;
}  // namespace deck

class SimulatorSetUpPage : public QWidget {
public:
    // The program outlives the page.
    explicit SimulatorSetUpPage(SimulatorProgram& simulatorProgram);

    void ShowState();
    // A sentence for the user.
    void Tell(const QString& sentence);

private:
    deck::Section* NewSetUpPart();
    deck::Section* NewLinksPart();
    deck::Section* NewHerePart();
    deck::Section* NewTellingsPart();
    void Rename(const std::string& text);

    SimulatorProgram& program;
    deck::TextField* name;
    deck::Readout* place;
    deck::SignalLight* broker;
    ComputersBox* computers;
    QCheckBox* offersSimulator;
    QCheckBox* offersFramework;
    deck::SignalLight* simulatorLink;
    deck::SignalLight* frameworkLink;
    deck::Readout* keys;
    deck::Readout* buttons;
    deck::Readout* joysticks;
    deck::Readout* refused;
    deck::TimedLog* tellings;
};

}  // namespace orvelle
