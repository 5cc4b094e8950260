// The shell's colours and measures: two calm palettes, and the colours and shapes by which lamps speak. Every colour
// has enough contrast on the palette's window and base colours (texts at least 4.5:1, signs at least 3:1).
#pragma once

#include <QPalette>

#include "platform/Types.h"

class QPainter;

namespace orvelle {

enum class Scheme { Light, Dark };

// What a lamp says, each by a shape of its own as well as by a colour: a disc with a check, a square with a cross, a
// triangle, an empty ring.
enum class Sign { Good, Bad, Waiting, Off };

// The one unit of all margins and gaps, logical pixels. The forms hold the same number.
constexpr int Unit = 8;

// The system's scheme as far as its palette tells it. Ask before ApplyTheme.
Scheme SystemScheme();
Scheme SchemeOf(const QPalette& palette);
QPalette CalmPalette(Scheme scheme);
// Style and palette of the whole program; called once, before the first widget is made.
void ApplyTheme(Scheme scheme);

QColor SignColour(Sign sign, Scheme scheme);
// The colour of a text whose control asks for `foreColor` (0x00BBGGRR or a system colour by number).
QColor TextColour(Long foreColor, const QPalette& palette);
// The sign of a lamp of that fill colour.
Sign SignOfFill(Long fillColor);

// Draws into `area`, which is a square. The signs inside the shapes (check, cross) show the background.
void DrawSign(QPainter& painter, const QRectF& area, Sign sign, const QColor& colour);

}  // namespace orvelle
