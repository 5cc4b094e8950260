// The picture of the simulator's program, in the notification area and on its window: the computers of a set-up around
// one, whose sign tells how it stands. It brings its own dark face, so that it reads on any background.
#pragma once

#include <QIcon>

#include "adapters/looks/Signs.h"

namespace orvelle {

QIcon SimulatorIcon(Sign sign);

}  // namespace orvelle
