// Texts and outlines have contrast on either palette.
#include "adapters/looks/Theme.h"

#include <gtest/gtest.h>

#include <QLineEdit>

#include "adapters/looks/Contrast.h"

namespace orvelle {
namespace {

class ThemeTest : public testing::TestWithParam<Scheme> {
protected:
    const QPalette palette = CalmPalette(GetParam());
};

TEST_P(ThemeTest, TextsHaveContrast) {
    for (const QPalette::ColorRole ground : {QPalette::Window, QPalette::Base, QPalette::AlternateBase})
        EXPECT_GE(Contrast(palette.color(QPalette::PlaceholderText), palette.color(ground)), 4.5);
    EXPECT_GE(Contrast(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)), 4.5);
    EXPECT_GE(Contrast(palette.color(QPalette::ToolTipText), palette.color(QPalette::ToolTipBase)), 4.5);
    EXPECT_GE(Contrast(palette.color(QPalette::ButtonText), palette.color(QPalette::Button)), 4.5);
}

TEST_P(ThemeTest, DisabledTextsCanStillBeRead) {
    EXPECT_GE(Contrast(palette.color(QPalette::Disabled, QPalette::WindowText), palette.color(QPalette::Window)), 2.5);
}

TEST_P(ThemeTest, OutlinesHaveContrast) {
    for (const QPalette::ColorRole ground : {QPalette::Window, QPalette::Base})
        EXPECT_GE(Contrast(palette.color(QPalette::Shadow), palette.color(ground)), 2.5);
}

TEST_P(ThemeTest, AFieldThatIsEnabledLooksSo) {
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

TEST_P(ThemeTest, ThePaletteIsKnownByItsLightness) { EXPECT_EQ(SchemeOf(palette), GetParam()); }

INSTANTIATE_TEST_SUITE_P(Palettes, ThemeTest, testing::Values(Scheme::Light, Scheme::Dark),
                         [](const auto& palette) { return palette.param == Scheme::Light ? "Light" : "Dark"; });

}  // namespace
}  // namespace orvelle
