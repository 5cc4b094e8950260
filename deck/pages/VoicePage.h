// The voice engine's page: the engine that serves, its three rooms and its devices beside the parameters in which the
// panel and other parties meet. What can happen in it can be done to the engine that is played alone; while a real one
// serves a line says so. It is also where the played engine's calibration dialogue is shown.
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
    Ticket calibration, watch;
};

}  // namespace orvelle::deck
