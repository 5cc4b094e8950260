// The status picture: a little annunciator of six lamps, drawn from the six letters of its key. The upper row is the
// simulator link, the framework link and the user, the lower row RogerWilco, TeamSpeak and VATSIM voice; each says its
// letter by shape and colour: V a green disc, R a red cross, or with a voice software, which may well be off, a ring of
// a dull red, Y a yellow triangle. It brings its own dark face, so that it reads on any background, and is drawn anew
// for every size, 16 to 256 pixels and beyond. The tray, the taskbar and the overview show it. Letters that are none of
// the three leave their place dark.
#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QString>
#include <string>

class QPainter;

namespace orvelle::qt {

// What all our icons have in common: the dark face, with an edge where there is room for one.
constexpr QColor IconFace{0x1a, 0x21, 0x28};
void DrawIconFace(QPainter& painter, const QRectF& area, qreal pixel);

QIcon StatusIcon(const std::string& key);
// `size` in device pixels.
QPixmap StatusPixmap(const std::string& key, int size);
// `area` is a square; `pixel` is the size of a device pixel in the painter's units, to which edges are fitted.
void DrawStatusImage(QPainter& painter, const QRectF& area, const std::string& key, qreal pixel);

// What the picture of a key says, lamp by lamp; "" for an empty key.
QString StatusWords(const std::string& key);

}  // namespace orvelle::qt
