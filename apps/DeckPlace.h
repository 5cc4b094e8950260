// Where the flight deck opens: beside the panel where the screen has room for it, on the right or else on the left; and
// where it has none, before the panel's pages with the list at their left free, else under the panel with an edge of
// its own free. On a screen that the panel fills it comes before the panel, whose edge stays free then. Never is one of
// the two wholly under the other. All are rectangles of windows with their frames, in logical pixels.
#pragma once

#include <QRect>

namespace orvelle {

struct DeckPlace {
    enum class Layer { Beside, BehindPanel, BeforePanel };

    QRect Frame;
    Layer Where;
};

struct DeckSizes {
    QSize Usual;
    int LeastWidth;  // in which no page is scrolled sideways
    int PanelsList;  // the width of the list at the panel's left
};

// `room` is what the panel's screen has for windows.
DeckPlace FindDeckPlace(const QRect& panel, const QRect& room, const DeckSizes& sizes);
// The same, and clear of a small window at the screen's edge; null for none.
DeckPlace FindDeckPlace(const QRect& panel, const QRect& room, const DeckSizes& sizes, const QRect& keptFree);

}  // namespace orvelle
