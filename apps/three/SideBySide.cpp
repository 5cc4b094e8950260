#include "apps/three/SideBySide.h"

#include <QFont>
#include <QPainter>
#include <algorithm>

#include "adapters/looks/Theme.h"

namespace orvelle {

namespace {

constexpr int Gap = 2 * Unit;
constexpr int CaptionHeight = 6 * Unit;
constexpr int CaptionPixels = 28;
constexpr int NameWidth = 9 * Unit;

void Write(QPainter& painter, const QRect& place, QFont::Weight weight, const QString& text) {
    QFont font;
    font.setPixelSize(CaptionPixels);
    font.setWeight(weight);
    painter.setFont(font);
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter, text);
}

QSize LargestOf(const std::vector<CaptionedScreen>& screens) {
    QSize size;
    for (const CaptionedScreen& each : screens) size = size.expandedTo(each.Screen.size());
    return size;
}

}  // namespace

QImage SideBySide(const std::vector<CaptionedScreen>& screens) {
    const QSize size = LargestOf(screens);
    const int count = static_cast<int>(screens.size());
    QImage picture(count * (size.width() + Gap) + Gap, CaptionHeight + size.height() + 2 * Gap, QImage::Format_RGB32);
    const QPalette palette = CalmPalette(Scheme::Light);
    picture.fill(palette.color(QPalette::Window));
    QPainter painter(&picture);
    painter.setPen(palette.color(QPalette::WindowText));
    int left = Gap;
    for (const CaptionedScreen& each : screens) {
        Write(painter, {left, Gap, NameWidth, CaptionHeight}, QFont::Bold, each.Name);
        Write(painter, {left + NameWidth, Gap, size.width() - NameWidth, CaptionHeight}, QFont::Normal, each.State);
        const QRect screen(QPoint(left, Gap + CaptionHeight), size);
        if (each.Screen.isNull())
            painter.fillRect(screen, Qt::black);
        else
            painter.drawImage(screen.topLeft(), each.Screen);
        left += size.width() + Gap;
    }
    return picture;
}

}  // namespace orvelle
