#include "adapters/looks/ScreenRoom.h"

#include <QScreen>

namespace orvelle {

QSize MostWindowSize(const QScreen& screen) { return screen.availableGeometry().size() - FrameAllowance; }

}  // namespace orvelle
