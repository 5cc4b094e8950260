// The interface records in which the panels of several computers meet: all that are there, and where the network is
// played what another computer does with its own: it claims a voice role or drops it again.
#pragma once

#include <map>
#include <string>

#include "deck/fields/Section.h"
#include "platform/Ticket.h"
#include "platform/Types.h"

class QCheckBox;
class QLineEdit;
class QTableWidget;

namespace orvelle {
class NetworkSide;
class PlayedNetworkSide;
}  // namespace orvelle

namespace orvelle::deck {

class RecordsBox : public Section {
public:
    explicit RecordsBox(NetworkSide& framework);

private:
    void AddOtherComputer();
    Long ClaimOf(const std::string& role) const;  // the other computer's record of the role, 0 for none
    Long SelectedId() const;                      // likewise
    void Claim(const std::string& role, bool on);
    void ShowState();
    void ShowClaims();

    NetworkSide& network;
    PlayedNetworkSide* const played;  // null where the network is real: then the other computers do their own
    QTableWidget* table;
    QLineEdit* computer = nullptr;
    std::map<std::string, QCheckBox*> claims;  // by role
    Ticket watch;
};

}  // namespace orvelle::deck
