// The interface records in which the panels of several computers meet: all that are there, and what another computer
// does with its own: it claims a voice role or drops it again.
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
}  // namespace orvelle

namespace orvelle::deck {

class RecordsBox : public Section {
public:
    explicit RecordsBox(NetworkSide& framework);

private:
    Long ClaimOf(const std::string& role) const;  // the other computer's record of the role, 0 for none
    Long SelectedId() const;                      // likewise
    void Claim(const std::string& role, bool on);
    void ShowState();
    void ShowClaims();

    NetworkSide& network;
    QTableWidget* table;
    QLineEdit* computer;
    std::map<std::string, QCheckBox*> claims;  // by role
    Ticket watch;
};

}  // namespace orvelle::deck
