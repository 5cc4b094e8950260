// What a lamp says by colour it says by shape, and the digits of a frequency do not jump.
#include <gtest/gtest.h>

#include <QApplication>
#include <QHelpEvent>
#include <QImage>
#include <QToolTip>

#include "adapters/qt/widgets/FrequencyDisplay.h"
#include "adapters/qt/widgets/Lamp.h"

namespace orvelle::qt {
namespace {

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

TEST(LampTest, TheTipOfADevicesLampTellsItsStateBehindItsOwnWords) {
    Lamp device;
    device.setToolTip("Microphone Device Status");
    device.SetLit(true);
    device.show();
    const auto tip = [&device] {
        QHelpEvent asked(QEvent::ToolTip, {1, 1}, device.mapToGlobal(QPoint(1, 1)));
        QApplication::sendEvent(&device, &asked);
        return QToolTip::text();
    };
    device.SetFill(128);
    EXPECT_EQ(tip(), "Microphone Device Status: does not work");
    device.SetFill(32768);
    EXPECT_EQ(tip(), "Microphone Device Status: works");
    EXPECT_EQ(device.toolTip(), "Microphone Device Status");
    QToolTip::hideText();
}

TEST(LampTest, ALampTellsItsStateByShapeAlone) {
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
    EXPECT_EQ(radio.Words(), QStringLiteral("on"));
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
