// A sign as an icon, for what takes icons: drawn for each size, in the colour that the program's palette has when it is
// drawn.
#pragma once

#include <QIcon>

#include "adapters/looks/Signs.h"

namespace orvelle {

QIcon SignIcon(Sign sign);

}  // namespace orvelle
