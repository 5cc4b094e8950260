// A desktop's palette, accent and font are followed live, and each tone and sign stands out on all of them.
#include "adapters/looks/DesktopTheme.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QStyle>
#include <QWidget>

#include "adapters/looks/Contrast.h"
#include "adapters/looks/Signs.h"
#include "tests/qt/shell/WidgetInput.h"

namespace orvelle {
namespace {

struct Desktop {
    const char* Name;
    QRgb Window, Base, Text, Button, Highlight, HighlightedText;
};

// Of usual desktops, of high contrast, and two in which little stands out.
constexpr Desktop Desktops[] = {
    {"Light", 0xffeff0f1, 0xffffffff, 0xff232629, 0xfffcfcfc, 0xff3daee9, 0xffffffff},
    {"Dark", 0xff2a2e32, 0xff1b1e20, 0xfffcfcfc, 0xff31363b, 0xff3daee9, 0xfffcfcfc},
    {"HighContrast", 0xffffffff, 0xffffffff, 0xff000000, 0xffffffff, 0xff000000, 0xffffffff},
    {"HighContrastDark", 0xff000000, 0xff000000, 0xffffff00, 0xff000000, 0xff00ffff, 0xff000000},
    {"Sepia", 0xffeee8d5, 0xfffdf6e3, 0xff839496, 0xffeee8d5, 0xff268bd2, 0xffeee8d5},
    {"Grey", 0xff808080, 0xff8a8a8a, 0xff909090, 0xff808080, 0xff7a8088, 0xff808080}};

QPalette PaletteOf(const Desktop& desktop) {
    QPalette palette(QColor::fromRgb(desktop.Button), QColor::fromRgb(desktop.Window));
    const auto set = [&palette](QPalette::ColorRole role, QRgb tone) { palette.setColor(role, QColor::fromRgb(tone)); };
    set(QPalette::Base, desktop.Base);
    set(QPalette::AlternateBase, desktop.Base);
    set(QPalette::WindowText, desktop.Text);
    set(QPalette::Text, desktop.Text);
    set(QPalette::ButtonText, desktop.Text);
    set(QPalette::Highlight, desktop.Highlight);
    set(QPalette::HighlightedText, desktop.HighlightedText);
    return palette;
}

void ExpectContrasts(const QPalette& palette) {
    for (const QPalette::ColorRole ground : {QPalette::Window, QPalette::Base, QPalette::AlternateBase}) {
        const QColor under = palette.color(ground);
        for (const Sign sign : {Sign::Good, Sign::Bad, Sign::Waiting, Sign::Off})
            EXPECT_GE(Contrast(SignColour(sign, palette), under), 4.5) << under.name().toStdString();
        for (const QPalette::ColorRole text : {QPalette::WindowText, QPalette::Text, QPalette::PlaceholderText})
            EXPECT_GE(Contrast(palette.color(text), under), 4.5) << under.name().toStdString();
        EXPECT_GE(Contrast(palette.color(QPalette::Shadow), under), 2.5) << under.name().toStdString();
        EXPECT_GE(Contrast(palette.color(QPalette::Disabled, QPalette::WindowText), under), 2.5);
    }
    EXPECT_GE(Contrast(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)), 4.5);
    EXPECT_GE(Contrast(palette.color(QPalette::ButtonText), palette.color(QPalette::Button)), 4.5);
    EXPECT_GE(Contrast(palette.color(QPalette::ToolTipText), palette.color(QPalette::ToolTipBase)), 4.5);
}

class DesktopThemeTest : public testing::Test {
protected:
    ~DesktopThemeTest() override {
        QApplication::setPalette(QPalette());
        ApplyTheme(Scheme::Light);
    }
};

TEST_F(DesktopThemeTest, EveryDesktopsColoursStayAndStandOut) {
    for (const Desktop& desktop : Desktops) {
        SCOPED_TRACE(desktop.Name);
        const QPalette palette = CalmPalette(PaletteOf(desktop));
        EXPECT_EQ(palette.color(QPalette::Window).rgb(), desktop.Window);
        EXPECT_EQ(palette.color(QPalette::Base).rgb(), desktop.Base);
        EXPECT_EQ(palette.color(QPalette::Highlight).rgb(), desktop.Highlight);
        ExpectContrasts(palette);
    }
}

TEST_F(DesktopThemeTest, AccentAndContrastAreTakenWithOurOwnTones) {
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark})
        for (const QColor& accent : {QColor(), QColor(0xe6, 0x2d, 0x42), QColor(0xff, 0xf0, 0x60), QColor(Qt::black)})
            for (const bool contrast : {false, true}) {
                const QPalette palette = CalmPalette(scheme, {std::nullopt, accent, contrast});
                ExpectContrasts(palette);
                if (accent.isValid()) {
                    EXPECT_EQ(palette.color(QPalette::Highlight).rgb(), accent.rgb());
                }
                if (contrast) {
                    EXPECT_GE(Contrast(palette.color(QPalette::WindowText), palette.color(QPalette::Base)), 20);
                }
            }
}

TEST_F(DesktopThemeTest, APaletteThatComesLaterIsFollowed) {
    QApplication::setPalette(QPalette());
    const DesktopTheme theme;
    QWidget window;
    window.show();
    EXPECT_EQ(window.palette().color(QPalette::Window), CalmPalette(Scheme::Light).color(QPalette::Window));
    for (const Desktop& desktop : Desktops) {
        QApplication::setPalette(PaletteOf(desktop));
        const QPalette followed = CalmPalette(PaletteOf(desktop));
        EXPECT_TRUE(WaitFor([&followed] { return QApplication::palette() == followed; })) << desktop.Name;
        EXPECT_EQ(window.palette().color(QPalette::Window).rgb(), desktop.Window) << desktop.Name;
        EXPECT_EQ(window.palette().color(QPalette::Shadow), followed.color(QPalette::Shadow)) << desktop.Name;
    }
}

// The platform's theme, when it changes, tells every window.
TEST_F(DesktopThemeTest, AChangedThemeIsAskedAnew) {
    QApplication::setPalette(PaletteOf(Desktops[1]));
    const DesktopTheme theme;
    EXPECT_EQ(QApplication::palette().color(QPalette::Window).rgb(), Desktops[1].Window);
    QWidget window;
    QEvent change(QEvent::ThemeChange);
    QCoreApplication::sendEvent(&window, &change);
    // This platform brings none.
    EXPECT_TRUE(WaitFor([] { return QApplication::palette() == CalmPalette(Scheme::Light); }));
}

}  // namespace
}  // namespace orvelle
