// What a sign says by its colour it says by its shape, and either can be seen on both palettes.
#include "adapters/looks/Signs.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include "adapters/looks/Contrast.h"
#include "platform/controls/Label.h"

namespace orvelle {
namespace {

constexpr Sign AllSigns[] = {Sign::Good, Sign::Bad, Sign::Waiting, Sign::Off};

QImage Drawn(Sign sign, int side) {
    QImage image(side, side, QImage::Format_Grayscale8);
    image.fill(Qt::white);
    QPainter painter(&image);
    DrawSign(painter, image.rect(), sign, Qt::black);
    return image;
}

class SignsTest : public testing::TestWithParam<Scheme> {
protected:
    const QPalette palette = CalmPalette(GetParam());
};

TEST_P(SignsTest, HaveContrast) {
    for (const QPalette::ColorRole ground : {QPalette::Window, QPalette::Base})
        for (const Sign sign : AllSigns) EXPECT_GE(Contrast(SignColour(sign, palette), palette.color(ground)), 4.5);
}

TEST_P(SignsTest, TheTextsOfControlsHaveContrast) {
    for (const QPalette::ColorRole ground : {QPalette::Window, QPalette::Base, QPalette::AlternateBase}) {
        EXPECT_GE(Contrast(TextColour(255, palette), palette.color(ground)), 4.5);
        EXPECT_GE(Contrast(TextColour(ButtonTextColour, palette), palette.color(ground)), 7);
    }
}

INSTANTIATE_TEST_SUITE_P(Palettes, SignsTest, testing::Values(Scheme::Light, Scheme::Dark),
                         [](const auto& palette) { return palette.param == Scheme::Light ? "Light" : "Dark"; });

TEST(SignTest, TheSignsDifferByShapeAlone) {
    for (const int side : {14, 17, 28}) {
        QList<QImage> drawn;
        for (const Sign sign : AllSigns) {
            EXPECT_FALSE(drawn.contains(Drawn(sign, side)));
            drawn.append(Drawn(sign, side));
        }
    }
}

TEST(SignTest, ALampIsGoodOrBadByItsFill) {
    EXPECT_EQ(SignOfFill(32768), Sign::Good);
    EXPECT_EQ(SignOfFill(128), Sign::Bad);
}

TEST(SignTest, ATextOfAnotherColourHasIt) {
    EXPECT_EQ(TextColour(0x563412, CalmPalette(Scheme::Dark)), QColor(0x12, 0x34, 0x56));
}

}  // namespace
}  // namespace orvelle
