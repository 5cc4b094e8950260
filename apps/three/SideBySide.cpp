#include "apps/three/SideBySide.h"

#include <QFont>
#include <QPainter>
#include <algorithm>

#include "adapters/looks/Theme.h"

namespace orvelle {

namespace {

constexpr int Gap = 2 * Unit;
constexpr int TitleHeight = 6 * Unit;
constexpr int CaptionHeight = 7 * Unit;
constexpr int TitlePixels = 28;
constexpr int NamePixels = 24;
constexpr int StatePixels = 18;

void Write(QPainter& painter, const QRect& place, int pixels, QFont::Weight weight, const QString& text) {
    QFont font;
    font.setPixelSize(pixels);
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

QImage SideBySide(const QString& title, const std::vector<CaptionedScreen>& screens) {
    const QSize size = LargestOf(screens);
    const int count = static_cast<int>(screens.size());
    QImage picture(count * (size.width() + Gap) + Gap, TitleHeight + CaptionHeight + size.height() + 2 * Gap,
                   QImage::Format_RGB32);
    const QPalette palette = CalmPalette(Scheme::Light);
    picture.fill(palette.color(QPalette::Window));
    QPainter painter(&picture);
    painter.setPen(palette.color(QPalette::WindowText));
    Write(painter, {Gap, Gap, picture.width(), TitleHeight}, TitlePixels, QFont::Bold, title);
    int left = Gap;
    for (const CaptionedScreen& each : screens) {
        const int top = Gap + TitleHeight;
        Write(painter, {left, top, size.width(), CaptionHeight / 2}, NamePixels, QFont::Bold, each.Name);
        Write(painter, {left, top + CaptionHeight / 2, size.width(), CaptionHeight / 2}, StatePixels, QFont::Normal,
              each.State);
        const QRect screen(QPoint(left, top + CaptionHeight), size);
        if (each.Screen.isNull())
            painter.fillRect(screen, Qt::black);
        else
            painter.drawImage(screen.topLeft(), each.Screen);
        left += size.width() + Gap;
    }
    return picture;
}

}  // namespace orvelle
