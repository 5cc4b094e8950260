// The parameters of one interface record by their names: who wrote them, and which changed lately. Editing a value is
// the write of another party on the network. Until the user picks one it is the panel's own record of role "VVL".
#pragma once

#include <QElapsedTimer>

#include "deck/fields/LateWrites.h"
#include "deck/fields/Section.h"
#include "platform/Ticket.h"
#include "platform/Types.h"

class QComboBox;
class QTableWidget;

namespace orvelle {
class NetworkSide;
}  // namespace orvelle

namespace orvelle::deck {

class Readout;

class ParametersBox : public Section {
public:
    explicit ParametersBox(NetworkSide& framework);

private:
    Long ShownId() const;  // 0 for none
    void ShowState();
    void ShowRecords();
    void ShowParameters();
    void Write(int row, const QString& text);

    NetworkSide& network;
    QComboBox* record;
    QStringList shownRecords;
    QTableWidget* table;
    Readout* note;
    LateWrites late;
    QElapsedTimer clock;
    bool picked = false;  // by the user
    Ticket watch;
};

}  // namespace orvelle::deck
