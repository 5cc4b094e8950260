// The measures and the two calm palettes of all windows. Texts have contrast enough on the window and base colours (at
// least 4.5:1).
#pragma once

#include <QPalette>

namespace orvelle {

enum class Scheme { Light, Dark };

// The one unit of all margins and gaps, logical pixels. The forms hold the same number.
constexpr int Unit = 8;

// The system's scheme as far as its palette tells it. Ask before ApplyTheme.
Scheme SystemScheme();
Scheme SchemeOf(const QPalette& palette);
QPalette CalmPalette(Scheme scheme);
// Style and palette of the whole program; called once, before the first widget is made.
void ApplyTheme(Scheme scheme);

}  // namespace orvelle
