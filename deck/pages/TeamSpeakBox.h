// The TeamSpeak program that the panel controls: whether it runs, where it is, and the results in place of success.
#pragma once

#include "deck/fields/Section.h"
#include "platform/Ticket.h"

class QCheckBox;
class QSpinBox;

namespace orvelle {
class EmbeddedTeamSpeak;
}  // namespace orvelle

namespace orvelle::deck {

class Readout;

class TeamSpeakBox : public Section {
public:
    explicit TeamSpeakBox(EmbeddedTeamSpeak& program);

private:
    void ShowState();

    EmbeddedTeamSpeak& teamSpeak;
    QCheckBox* running;
    Readout* place;
    Readout* url;
    Ticket watch;
};

}  // namespace orvelle::deck
