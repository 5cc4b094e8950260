// Texts and outlines have contrast on either palette.
#include "adapters/looks/Theme.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QVBoxLayout>

#include "adapters/looks/Contrast.h"
#include "tests/qt/shell/WidgetInput.h"

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

TEST_P(ThemeTest, AListBoxWithTheFocusIsOutlinedAsATextFieldIs) {
    ApplyTheme(GetParam());
    QWidget window;
    auto* column = new QVBoxLayout(&window);
    auto* box = new QComboBox;
    auto* field = new QLineEdit;
    box->addItem("COM1");
    for (QWidget* widget : {static_cast<QWidget*>(box), static_cast<QWidget*>(field)}) column->addWidget(widget);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(WaitForWindowActive(&window));
    const auto edge = [](QWidget* widget) {
        const QImage image = widget->grab().toImage();
        return QColor(image.pixel(0, image.height() / 2));
    };
    field->setFocus();
    const QColor unfocused = edge(box);
    const QColor focused = edge(field);
    EXPECT_NE(unfocused, focused);
    box->setFocus();
    EXPECT_EQ(edge(box), focused);
    EXPECT_EQ(edge(field), unfocused);
    ApplyTheme(Scheme::Light);
}

TEST_P(ThemeTest, ThePaletteIsKnownByItsLightness) { EXPECT_EQ(SchemeOf(palette), GetParam()); }

INSTANTIATE_TEST_SUITE_P(Palettes, ThemeTest, testing::Values(Scheme::Light, Scheme::Dark),
                         [](const auto& palette) { return palette.param == Scheme::Light ? "Light" : "Dark"; });

}  // namespace
}  // namespace orvelle
