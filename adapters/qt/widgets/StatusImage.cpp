#include "adapters/qt/widgets/StatusImage.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "adapters/looks/Signs.h"

namespace orvelle::qt {

namespace {

constexpr int Columns = 3;
constexpr int Rows = 2;
constexpr int Places = Columns * Rows;
// From this size on each lamp bears its name, and the signs inside the shapes show.
constexpr int CaptionSize = 88;
constexpr int DetailSize = 40;
constexpr int FaceEdgeSize = 20;
// From this place on a lamp is a voice software's, which a computer may well do without: its R is no alarm.
constexpr int FirstSoftware = 3;
constexpr const char* Captions[Places] = {"FS", "NET", "USER", "RW", "TS", "VOICE"};
constexpr const char* Subjects[Places] = {"simulator link", "framework link", "main pilot user",
                                          "RogerWilco",     "TeamSpeak",      "VATSIM voice"};

QColor LampColour(char letter) {
    switch (letter) {
        case 'V':
            return QColor(0x3d, 0xdc, 0x84);
        case 'R':
            return QColor(0xff, 0x5a, 0x4f);
        default:
            return QColor(0xff, 0xd0, 0x3b);
    }
}

// A cross of two strokes, row by row in whole device pixels: lines drawn smoothly blur into a blot at this size.
void DrawCross(QPainter& painter, const QRectF& box, qreal pixel) {
    const int columns = static_cast<int>(std::round(box.width() / pixel));
    const int rows = static_cast<int>(std::round(box.height() / pixel));
    const int stroke = std::max(1, static_cast<int>(std::round(columns * 0.3)));
    for (int row = 0; row < rows; ++row) {
        const qreal fromEnd = 1 - std::abs(2.0 * row - (rows - 1)) / (rows - 1);
        const int inset = static_cast<int>(fromEnd * (columns - stroke) / 2);
        const qreal y = box.top() + row * pixel;
        painter.drawRect(QRectF(box.left() + inset * pixel, y, stroke * pixel, pixel));
        painter.drawRect(QRectF(box.right() - (inset + stroke) * pixel, y, stroke * pixel, pixel));
    }
}

// A ring of a dull red: the software isn't at work here.
void DrawRestingLamp(QPainter& painter, const QRectF& box, bool detailed, qreal pixel) {
    const QColor colour(0xc0, 0x86, 0x81);
    if (detailed) return DrawSign(painter, box, Sign::Off, colour);
    QPainterPath ring;
    ring.addRoundedRect(box, box.width() / 2, box.width() / 2);
    QPainterPath hole;
    const qreal stroke = std::max(1.0, std::round(box.width() / pixel / 5)) * pixel;
    hole.addRoundedRect(box.adjusted(stroke, stroke, -stroke, -stroke), box.width() / 4, box.width() / 4);
    painter.fillPath(ring.subtracted(hole), colour);
}

void DrawSmallLamp(QPainter& painter, const QRectF& box, char letter, qreal pixel) {
    painter.setBrush(LampColour(letter));
    if (letter == 'R') {
        DrawCross(painter, box, pixel);
    } else if (letter == 'V') {
        painter.drawRoundedRect(box, box.width() / 2, box.width() / 2);
    } else {
        const QPointF corners[] = {{box.center().x(), box.top()}, box.bottomRight(), box.bottomLeft()};
        painter.drawPolygon(corners, 3);
    }
}

void DrawLamp(QPainter& painter, const QRectF& box, char letter, bool detailed, qreal pixel) {
    if (letter != 'V' && letter != 'R' && letter != 'Y') {
        painter.setBrush(QColor(0x47, 0x52, 0x5c));
        painter.drawEllipse(box.center(), box.width() / 5, box.width() / 5);
    } else if (detailed) {
        const Sign sign = letter == 'V' ? Sign::Good : letter == 'R' ? Sign::Bad : Sign::Waiting;
        DrawSign(painter, box, sign, LampColour(letter));
    } else {
        DrawSmallLamp(painter, box, letter, pixel);
    }
}

// Whole device pixels, so that the lamps of a small icon have sharp and equal edges.
qreal FitToPixels(qreal length, qreal pixel) { return std::max(1.0, std::round(length / pixel)) * pixel; }

class StatusIconEngine : public QIconEngine {
public:
    explicit StatusIconEngine(std::string lampKey) : lamps(std::move(lampKey)) {}

    void paint(QPainter* painter, const QRect& area, QIcon::Mode, QIcon::State) override {
        const int side = std::min(area.width(), area.height());
        const QRectF square(area.x() + (area.width() - side) / 2.0, area.y() + (area.height() - side) / 2.0, side,
                            side);
        DrawStatusImage(*painter, square, lamps, 1 / painter->device()->devicePixelRatioF());
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return scaledPixmap(size, mode, state, 1);
    }
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal) override {
        QPixmap drawn(size);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        paint(&painter, drawn.rect(), mode, state);
        return drawn;
    }
    // For windows and lists, which scale what is larger; each that is named here is drawn at every change.
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
        return {QSize(16, 16), QSize(24, 24), QSize(32, 32), QSize(64, 64)};
    }
    QIconEngine* clone() const override { return new StatusIconEngine(lamps); }
    QString key() const override { return QStringLiteral("orvelle-status"); }

private:
    const std::string lamps;
};

}  // namespace

void DrawIconFace(QPainter& painter, const QRectF& area, qreal pixel) {
    const qreal size = area.width();
    const qreal radius = size / 7;
    const qreal edge = size / pixel < FaceEdgeSize ? 0 : FitToPixels(size / 64, pixel);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x5d, 0x6b, 0x77));
    painter.drawRoundedRect(area, radius, radius);
    painter.setBrush(IconFace);
    painter.drawRoundedRect(area.adjusted(edge, edge, -edge, -edge), radius - edge, radius - edge);
    painter.restore();
}

void DrawStatusImage(QPainter& painter, const QRectF& area, const std::string& key, qreal pixel) {
    const auto fit = [pixel](qreal length) { return FitToPixels(length, pixel); };
    const qreal size = area.width();
    const bool captions = size / pixel >= CaptionSize;
    const bool detailed = size / pixel >= DetailSize;
    const qreal margin = fit(captions ? size / 10 : size / 16);
    const qreal gap = fit(captions ? size / 12 : size / 14);
    const qreal width = std::floor((size - 2 * margin - 2 * gap) / Columns / pixel) * pixel;
    const qreal height = detailed ? width : fit(width * 1.4);
    const qreal captionHeight = captions ? fit(size / 8) : 0;
    const qreal left = area.left() + std::floor((size - Columns * width - 2 * gap) / 2 / pixel) * pixel;
    const qreal slack = size - Rows * (height + captionHeight);
    const qreal rowGap = fit(captions ? slack / 3.4 : slack / 3);
    const qreal top = area.top() + std::floor((slack - rowGap) / 2 / pixel) * pixel;

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    DrawIconFace(painter, area, pixel);

    for (int place = 0; place < Places; ++place) {
        const int column = place % Columns;
        const int row = place / Columns;
        const QRectF box(left + column * (width + gap), top + row * (height + captionHeight + rowGap), width, height);
        const std::size_t position = static_cast<std::size_t>(place);
        const char letter = position < key.size() ? key[position] : ' ';
        if (letter == 'R' && place >= FirstSoftware)
            DrawRestingLamp(painter, box, detailed, pixel);
        else
            DrawLamp(painter, box, letter, detailed, pixel);
        if (!captions) continue;
        QFont font = QGuiApplication::font();
        font.setPixelSize(std::max(1, static_cast<int>(size * 0.075)));
        font.setWeight(QFont::DemiBold);
        painter.setFont(font);
        painter.setPen(QColor(0xb4, 0xc0, 0xca));
        painter.drawText(box.adjusted(-gap, height, gap, captionHeight), Qt::AlignHCenter | Qt::AlignBottom,
                         QLatin1String(Captions[place]));
        painter.setPen(Qt::NoPen);
    }
    painter.restore();
}

QString StatusWords(const std::string& key) {
    QStringList words;
    for (std::size_t place = 0; place < std::min<std::size_t>(key.size(), Places); ++place)
        words << QLatin1String(Subjects[place]) + QLatin1String(key[place] == 'V'   ? " on"
                                                                : key[place] == 'Y' ? " waiting"
                                                                                    : " off");
    return words.join(QLatin1String(", "));
}

QIcon StatusIcon(const std::string& key) { return QIcon(new StatusIconEngine(key)); }

QPixmap StatusPixmap(const std::string& key, int size) {
    return StatusIconEngine(key).pixmap(QSize(size, size), QIcon::Normal, QIcon::Off);
}

}  // namespace orvelle::qt
