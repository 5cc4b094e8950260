// FlightGear's options: whether its lines come, the two lines that make it send them, to be copied, or to be added to
// its file of options and taken out there. Part of the simulator's page.
#pragma once

#include <functional>
#include <string>

#include "deck/fields/Section.h"

class QPlainTextEdit;
class QPushButton;

namespace orvelle {

namespace deck {
class Readout;
class SignalLight;
}  // namespace deck

namespace simulators {
class FlightGearLine;
class FlightGearOptions;
}  // namespace simulators

class FlightGearBox : public deck::Section {
public:
    // Both outlive the box.
    FlightGearBox(const simulators::FlightGearLine& flightGear, const simulators::FlightGearOptions& flightGearOptions);

    void ShowState();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void LookAtFile();
    void Copy();
    void Change(const std::string& failure, const QString& success);

    const simulators::FlightGearLine& line;
    const simulators::FlightGearOptions& options;
    deck::SignalLight* comes;
    QPlainTextEdit* lines;
    QPushButton* add;
    QPushButton* takeOut;
    deck::Readout* answer;
    bool areAdded = false;  // the lines to the file, when it was looked at
};

}  // namespace orvelle
