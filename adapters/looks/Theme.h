// The measures and the palettes of all windows: the desktop's where it brings one, with our tones derived from it, and
// else one of two calm ones. Texts have contrast enough on the window and base colours (at least 4.5:1).
#pragma once

#include <QColor>
#include <QPalette>
#include <optional>

namespace orvelle {

enum class Scheme { Light, Dark };

// The one unit of all margins and gaps, logical pixels. The forms hold the same number.
constexpr int Unit = 8;

// What a desktop asks for beside its palette, or in its place.
struct Appearance {
    std::optional<Scheme> Wanted;
    QColor Accent;  // invalid for none
    bool HighContrast = false;
};

Scheme SchemeOf(const QPalette& palette);
QPalette CalmPalette(Scheme scheme, const Appearance& appearance = {});
// From the main colours of the desktop's palette, which stay as they are.
QPalette CalmPalette(const QPalette& desktop);
// Style and palette of the whole program, and what assistive programs see of it; called before the first widget is
// made. Programs follow the desktop instead: adapters/looks/DesktopTheme.h.
void ApplyTheme(Scheme scheme);

}  // namespace orvelle
