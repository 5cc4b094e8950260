// The voice engine's page: the engine, its three rooms and its devices beside the parameters in which the panel and
// other parties meet. It is also where the engine's calibration dialogue is shown.
#pragma once

#include <QWidget>

#include "platform/Ticket.h"

namespace orvelle {
struct FarSides;
}  // namespace orvelle

namespace orvelle::deck {

class VoicePage : public QWidget {
public:
    // The voice engine is there, with the devices.
    explicit VoicePage(const FarSides& sides);

private:
    Ticket calibration;
};

}  // namespace orvelle::deck
