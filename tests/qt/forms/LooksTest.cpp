// Colours have contrast on either palette, and what a lamp says by colour it says by shape.
#include <gtest/gtest.h>

#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <cmath>

#include "adapters/looks/Theme.h"
#include "adapters/qt/widgets/FrequencyDisplay.h"
#include "adapters/qt/widgets/Lamp.h"
#include "platform/controls/Label.h"

namespace orvelle::qt {
namespace {

double Luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
    const double a = Luminance(one);
    const double b = Luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

class LooksTest : public testing::TestWithParam<Scheme> {
protected:
    const QPalette palette = CalmPalette(GetParam());
};

TEST_P(LooksTest, TextsHaveContrast) {
    for (const QPalette::ColorRole ground : {QPalette::Window, QPalette::Base, QPalette::AlternateBase}) {
        EXPECT_GE(Contrast(TextColour(255, palette), palette.color(ground)), 4.5);
        EXPECT_GE(Contrast(TextColour(ButtonTextColour, palette), palette.color(ground)), 7);
        EXPECT_GE(Contrast(palette.color(QPalette::PlaceholderText), palette.color(ground)), 4.5);
    }
    EXPECT_GE(Contrast(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)), 4.5);
    EXPECT_GE(Contrast(palette.color(QPalette::ToolTipText), palette.color(QPalette::ToolTipBase)), 4.5);
    EXPECT_GE(Contrast(palette.color(QPalette::ButtonText), palette.color(QPalette::Button)), 4.5);
}

TEST_P(LooksTest, DisabledTextsCanStillBeRead) {
    EXPECT_GE(Contrast(palette.color(QPalette::Disabled, QPalette::WindowText), palette.color(QPalette::Window)), 2.5);
}

TEST_P(LooksTest, SignsAndOutlinesHaveContrast) {
    for (const QPalette::ColorRole ground : {QPalette::Window, QPalette::Base}) {
        for (const Sign sign : {Sign::Good, Sign::Bad, Sign::Waiting, Sign::Off})
            EXPECT_GE(Contrast(SignColour(sign, GetParam()), palette.color(ground)), 3);
        EXPECT_GE(Contrast(palette.color(QPalette::Shadow), palette.color(ground)), 2.5);
    }
}

TEST_P(LooksTest, AFieldThatIsEnabledLooksSo) {
    ApplyTheme(GetParam());
    QLineEdit field;
    field.resize(100, 30);
    const auto ground = [&field] { return QColor(field.grab().toImage().pixel(50, 15)); };
    field.setEnabled(false);
    EXPECT_EQ(ground(), palette.color(QPalette::Disabled, QPalette::Base));
    field.setEnabled(true);
    EXPECT_EQ(ground(), palette.color(QPalette::Base));
    ApplyTheme(Scheme::Light);
}

TEST_P(LooksTest, ThePaletteIsKnownByItsLightness) { EXPECT_EQ(SchemeOf(palette), GetParam()); }

INSTANTIATE_TEST_SUITE_P(Palettes, LooksTest, testing::Values(Scheme::Light, Scheme::Dark),
                         [](const auto& palette) { return palette.param == Scheme::Light ? "Light" : "Dark"; });

// The widget's picture with all colours but the ground made one.
QImage Shape(QWidget& widget) {
    widget.resize(widget.sizeHint());
    QImage picture = widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
    const QRgb ground = picture.pixel(0, 0);
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, picture.pixel(x, y) == ground ? 0xffffffff : 0xff000000);
    return picture;
}

TEST(SignTest, TheSignsDifferByShapeAlone) {
    QList<QImage> drawn;
    for (const Sign sign : {Sign::Good, Sign::Bad, Sign::Waiting, Sign::Off}) {
        QImage image(14, 14, QImage::Format_Grayscale8);
        image.fill(Qt::white);
        QPainter painter(&image);
        DrawSign(painter, image.rect(), sign, Qt::black);
        painter.end();
        EXPECT_FALSE(drawn.contains(image));
        drawn.append(image);
    }
}

TEST(SignTest, ALampTellsItsStateByShapeAlone) {
    Lamp device;
    const QImage dark = Shape(device);
    device.SetLit(true);
    device.SetFill(32768);
    const QImage good = Shape(device);
    device.SetFill(128);
    EXPECT_NE(dark, good);
    EXPECT_NE(good, Shape(device));

    Lamp radio;
    radio.SetLetters(QStringLiteral("RX"));
    const QImage off = Shape(radio);
    radio.SetLit(true);
    EXPECT_NE(off, Shape(radio));
    EXPECT_EQ(radio.accessibleDescription(), QStringLiteral("on"));
}

TEST(FrequencyDisplayTest, DigitsAreOfOneWidth) {
    FrequencyDisplay display;
    display.setText(QStringLiteral("111.111"));
    const QSize narrow = display.sizeHint();
    display.setText(QStringLiteral("888.888"));
    EXPECT_EQ(display.sizeHint(), narrow);
    EXPECT_GT(narrow.height(), 1.8 * display.fontMetrics().height());
}

}  // namespace
}  // namespace orvelle::qt
