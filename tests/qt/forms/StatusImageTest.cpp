// The 96 status icons.
#include "adapters/qt/widgets/StatusImage.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <cmath>
#include <set>
#include <utility>
#include <vector>

#include "panel/Controls.h"

namespace orvelle::qt {
namespace {

class StatusImageTest : public testing::Test {
protected:
    const std::set<std::string> keys = PanelControls().IconList.Keys();
};

// As it stands on a tray of that colour, without its colours.
QImage Grey(const std::string& key, int size, const QColor& tray) {
    QImage image(size, size, QImage::Format_RGB32);
    image.fill(tray);
    QPainter painter(&image);
    painter.drawPixmap(0, 0, StatusPixmap(key, size));
    painter.end();
    return image.convertToFormat(QImage::Format_Grayscale8);
}

// Points that differ so that it is seen.
int Difference(const QImage& one, const QImage& other) {
    constexpr int Seen = 48;
    int points = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            if (std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y))) >= Seen) ++points;
    return points;
}

TEST_F(StatusImageTest, All96DifferWithoutTheirColoursAt16Pixels) {
    ASSERT_EQ(keys.size(), 96u);
    constexpr int LeastPoints = 6;  // of the 24 of one lamp
    for (const QColor& tray : {QColor(Qt::white), QColor(Qt::black)}) {
        std::vector<QImage> images;
        for (const std::string& key : keys) images.push_back(Grey(key, 16, tray));
        for (std::size_t one = 0; one < images.size(); ++one)
            for (std::size_t other = one + 1; other < images.size(); ++other)
                ASSERT_GE(Difference(images[one], images[other]), LeastPoints) << one << " and " << other;
    }
}

TEST_F(StatusImageTest, EachSizeIsDrawnInThatSize) {
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
        EXPECT_EQ(StatusPixmap("VVVRRY", size).size(), QSize(size, size));
        EXPECT_EQ(StatusIcon("VVVRRY").pixmap(QSize(size, size), 1.0).size(), QSize(size, size));
    }
}

TEST_F(StatusImageTest, ALampsEdgesAreSharpInSmallIcons) {
    // Between the lamps of a row stands the bare face, over the whole height.
    for (const int size : {16, 22, 24, 32}) {
        const QImage image = StatusPixmap("VVVVVV", size).toImage();
        const QRgb face = image.pixel(size / 2, size - 2);
        int bareColumns = 0;
        for (int x = 2; x < size - 2; ++x) {
            bool isBare = true;
            for (int y = 2; y < size - 2; ++y) isBare = isBare && image.pixel(x, y) == face;
            bareColumns += isBare ? 1 : 0;
        }
        EXPECT_GE(bareColumns, 2) << size;
    }
}

TEST_F(StatusImageTest, EachLetterHasItsPlaceOfItsOwn) {
    const QImage dark = StatusPixmap("      ", 48).toImage();
    for (int place = 0; place < 6; ++place) {
        std::string key(6, ' ');
        key[static_cast<std::size_t>(place)] = 'V';
        const QImage lit = StatusPixmap(key, 48).toImage();
        QRect changed;
        for (int y = 0; y < 48; ++y)
            for (int x = 0; x < 48; ++x)
                if (lit.pixel(x, y) != dark.pixel(x, y)) changed |= QRect(x, y, 1, 1);
        EXPECT_EQ(changed.center().x() / 16, place % 3) << place;
        EXPECT_EQ(changed.center().y() / 24, place / 3) << place;
    }
}

TEST_F(StatusImageTest, AVoiceSoftwareThatIsOffIsAnEmptyRing) {
    // The points that a lamp lights, from its own corner on.
    const auto shapeOf = [](int place, char letter, int size) {
        std::string key(6, ' ');
        const QImage dark = StatusPixmap(key, size).toImage();
        key[static_cast<std::size_t>(place)] = letter;
        const QImage lit = StatusPixmap(key, size).toImage();
        std::vector<std::pair<int, int>> points;
        QRect lamp;
        for (int y = 0; y < size; ++y)
            for (int x = 0; x < size; ++x)
                if (qGray(lit.pixel(x, y)) > qGray(dark.pixel(x, y)) + 40) {
                    points.emplace_back(x, y);
                    lamp |= QRect(x, y, 1, 1);
                }
        for (auto& [x, y] : points) x -= lamp.left(), y -= lamp.top();
        return points;
    };
    for (const int size : {16, 22, 32, 48}) {
        EXPECT_NE(shapeOf(0, 'R', size), shapeOf(3, 'R', size)) << size;
        for (int place = 3; place < 6; ++place)
            EXPECT_LT(shapeOf(place, 'R', size).size(), shapeOf(place, 'V', size).size()) << place << " at " << size;
    }
}

TEST_F(StatusImageTest, AKeyThatIsNoneIsDrawnWithoutItsLamps) {
    EXPECT_FALSE(StatusPixmap("", 32).isNull());
    EXPECT_EQ(StatusPixmap("", 32).toImage(), StatusPixmap("??", 32).toImage());
}

}  // namespace
}  // namespace orvelle::qt
