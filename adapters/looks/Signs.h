// The colours and shapes by which lamps and texts speak, in every window. Each sign has a shape of its own as well as a
// colour, and each colour contrast enough on the window and base colours of whichever palette (at least 4.5:1).
#pragma once

#include <QColor>

#include "adapters/looks/Theme.h"
#include "platform/Types.h"

class QPainter;

namespace orvelle {

// What a lamp says: a disc with a check, a square with a cross, a triangle with an exclamation mark, an empty ring.
enum class Sign { Good, Bad, Waiting, Off };

QColor SignColour(Sign sign, const QPalette& palette);
// The sign of a lamp of that fill colour (0x00BBGGRR).
Sign SignOfFill(Long fillColor);
// The colour of a text whose control asks for `foreColor` (0x00BBGGRR or a system colour by number).
QColor TextColour(Long foreColor, const QPalette& palette);

// Draws into `area`, which is a square. The signs inside the shapes (check, cross) show the background.
void DrawSign(QPainter& painter, const QRectF& area, Sign sign, const QColor& colour);

}  // namespace orvelle
