#include "apps/DeckPlace.h"

#include <algorithm>

namespace orvelle {

namespace {

constexpr int Gap = 16;       // between the two windows
constexpr int FreeEdge = 48;  // enough to be seen and clicked

// How far `one` sticks out from under `other`, at the side where it does most.
int EdgeOutside(const QRect& one, const QRect& other) {
    return std::max({one.right() - other.right(), other.left() - one.left(), one.bottom() - other.bottom(),
                     other.top() - one.top()});
}

QRect Beside(const QRect& panel, const QRect& room, const DeckSizes& sizes) {
    const int right = room.right() - panel.right() - Gap;
    const int left = panel.left() - room.left() - Gap;
    const bool isOnTheRight = right >= sizes.Usual.width() || (right >= left && left < sizes.Usual.width());
    const int width = std::min(sizes.Usual.width(), isOnTheRight ? right : left);
    if (width < sizes.LeastWidth) return {};
    const int height = std::min(sizes.Usual.height(), room.height());
    const int top = std::clamp(panel.top(), room.top(), room.bottom() + 1 - height);
    return {isOnTheRight ? panel.right() + 1 + Gap : panel.left() - Gap - width, top, width, height};
}

// In the corner of the screen where most of it is seen.
QRect Behind(const QRect& panel, const QRect& room, const DeckSizes& sizes) {
    QRect frame(QPoint(), sizes.Usual.boundedTo(room.size()));
    QRect best;
    for (const bool isRight : {true, false}) {
        for (const bool isLow : {true, false}) {
            frame.moveTo(isRight ? room.right() + 1 - frame.width() : room.left(),
                         isLow ? room.bottom() + 1 - frame.height() : room.top());
            if (best.isNull() || EdgeOutside(frame, panel) > EdgeOutside(best, panel)) best = frame;
        }
    }
    return best;
}

// At the side of the screen that leaves the panel's edge free.
QRect Before(const QRect& panel, const QRect& room, const DeckSizes& sizes) {
    const int width = std::min(sizes.Usual.width(), room.width() - FreeEdge);
    const int height = std::min(sizes.Usual.height(), room.height());
    const bool isOnTheRight = panel.left() - room.left() <= room.right() - panel.right();
    return {isOnTheRight ? room.right() + 1 - width : room.left(), room.bottom() + 1 - height, width, height};
}

}  // namespace

DeckPlace FindDeckPlace(const QRect& panel, const QRect& room, const DeckSizes& sizes) {
    if (const QRect frame = Beside(panel, room, sizes); !frame.isNull()) return {frame, DeckPlace::Layer::Beside};
    const QRect before = Before(panel, room, sizes);
    if (before.left() - panel.left() >= sizes.PanelsList) return {before, DeckPlace::Layer::BeforePanel};
    if (const QRect frame = Behind(panel, room, sizes); EdgeOutside(frame, panel) >= FreeEdge)
        return {frame, DeckPlace::Layer::BehindPanel};
    return {before, DeckPlace::Layer::BeforePanel};
}

DeckPlace FindDeckPlace(const QRect& panel, const QRect& room, const DeckSizes& sizes, const QRect& keptFree) {
    const DeckPlace place = FindDeckPlace(panel, room, sizes);
    if (!place.Frame.intersects(keptFree)) return place;
    const bool isLow = keptFree.center().y() > room.center().y();
    const QRect rest = isLow ? QRect(room.topLeft(), QPoint(room.right(), keptFree.top() - 1))
                             : QRect(QPoint(room.left(), keptFree.bottom() + 1), room.bottomRight());
    return FindDeckPlace(panel, rest, sizes);
}

}  // namespace orvelle
