#include "adapters/looks/Theme.h"

#include <QApplication>

#include "adapters/looks/CalmStyle.h"
#include "adapters/looks/Contrast.h"
#include "adapters/looks/reach/Reach.h"

namespace orvelle {

namespace {

struct Tones {
    QRgb Window;
    QRgb Base;
    QRgb Alternate;
    QRgb Button;
    QRgb Text;
    QRgb Disabled;
    QRgb Placeholder;
    QRgb Highlight;
    QRgb HighlightedText;
    QRgb Tip;
    QRgb TipText;
    QRgb Link;
    QRgb Line;
    QRgb Outline;
};

constexpr Tones LightTones{.Window = 0xfff1f3f5,
                           .Base = 0xffffffff,
                           .Alternate = 0xfff7f9fa,
                           .Button = 0xffe9edf0,
                           .Text = 0xff1b2630,
                           .Disabled = 0xff8a959f,
                           .Placeholder = 0xff5f6b76,
                           .Highlight = 0xff2b6a94,
                           .HighlightedText = 0xffffffff,
                           .Tip = 0xff26323c,
                           .TipText = 0xfff1f3f5,
                           .Link = 0xff1f5f8b,
                           .Line = 0xffbcc5cc,
                           .Outline = 0xff8d98a1};
constexpr Tones DarkTones{.Window = 0xff20262c,
                          .Base = 0xff181d22,
                          .Alternate = 0xff1d2329,
                          .Button = 0xff2e363e,
                          .Text = 0xffdfe5ea,
                          .Disabled = 0xff76828d,
                          .Placeholder = 0xff93a0ab,
                          .Highlight = 0xff2f6f99,
                          .HighlightedText = 0xffffffff,
                          .Tip = 0xff0f1316,
                          .TipText = 0xffdfe5ea,
                          .Link = 0xff7fb6db,
                          .Line = 0xff3d4750,
                          .Outline = 0xff66737f};

constexpr double OutlineContrast = 3;
constexpr double DisabledContrast = 2.5;

QRgb TextOn(const QColor& ground) { return Readable(Qt::white, {ground}, TextContrast).rgb(); }

Tones WithAccent(Tones tones, const QColor& accent) {
    tones.Highlight = accent.rgb();
    tones.HighlightedText = TextOn(accent);
    tones.Link = Readable(accent, {QColor(tones.Window), QColor(tones.Base)}, TextContrast).rgb();
    return tones;
}

Tones WithHighContrast(Tones tones, Scheme scheme) {
    const bool isDark = scheme == Scheme::Dark;
    tones.Window = tones.Base = tones.Alternate = tones.Button = isDark ? 0xff000000 : 0xffffffff;
    tones.Text = tones.Placeholder = tones.Line = tones.Outline = isDark ? 0xffffffff : 0xff000000;
    tones.Disabled = isDark ? 0xffb0b0b0 : 0xff505050;
    return tones;
}

// The desktop's own colours, and between them those that it doesn't name or names too faintly.
Tones TonesOf(const QPalette& desktop) {
    const auto colour = [&desktop](QPalette::ColorRole role) { return desktop.color(QPalette::Active, role); };
    const QColor window = colour(QPalette::Window);
    const QColor base = colour(QPalette::Base);
    const QColor text =
        Readable(colour(QPalette::WindowText), {window, base, colour(QPalette::AlternateBase)}, TextContrast);
    const QColor button = colour(QPalette::Button);
    const auto between = [&](double share, double least) {
        return Readable(Mixed(window, text, share), {window, base, colour(QPalette::AlternateBase)}, least).rgb();
    };
    const QColor highlight = colour(QPalette::Highlight);
    const QColor tip = colour(QPalette::ToolTipBase);
    return {.Window = window.rgb(),
            .Base = base.rgb(),
            .Alternate = colour(QPalette::AlternateBase).rgb(),
            .Button = button.rgb(),
            .Text = text.rgb(),
            .Disabled = between(0.45, DisabledContrast),
            .Placeholder = between(0.65, TextContrast),
            .Highlight = highlight.rgb(),
            .HighlightedText = Readable(colour(QPalette::HighlightedText), {highlight}, TextContrast).rgb(),
            .Tip = tip.rgb(),
            .TipText = Readable(colour(QPalette::ToolTipText), {tip}, TextContrast).rgb(),
            .Link = Readable(colour(QPalette::Link), {window, base}, TextContrast).rgb(),
            .Line = Mixed(window, text, 0.25).rgb(),
            .Outline = between(0.45, OutlineContrast)};
}

QPalette PaletteOf(const Tones& tones) {
    const QColor window = QColor::fromRgb(tones.Window);
    QPalette palette(QColor::fromRgb(tones.Button), window);
    const auto all = [&](QPalette::ColorRole role, QRgb tone) { palette.setColor(role, QColor::fromRgb(tone)); };
    all(QPalette::Base, tones.Base);
    all(QPalette::AlternateBase, tones.Alternate);
    all(QPalette::WindowText, tones.Text);
    all(QPalette::Text, tones.Text);
    all(QPalette::ButtonText,
        Readable(QColor::fromRgb(tones.Text), {QColor::fromRgb(tones.Button)}, TextContrast).rgb());
    all(QPalette::BrightText, tones.HighlightedText);
    all(QPalette::PlaceholderText, tones.Placeholder);
    all(QPalette::Highlight, tones.Highlight);
    all(QPalette::HighlightedText, tones.HighlightedText);
    all(QPalette::ToolTipBase, tones.Tip);
    all(QPalette::ToolTipText, tones.TipText);
    all(QPalette::Link, tones.Link);
    all(QPalette::LinkVisited, tones.Link);
    all(QPalette::Mid, tones.Line);
    all(QPalette::Dark, tones.Line);
    all(QPalette::Shadow, tones.Outline);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText})
        palette.setColor(QPalette::Disabled, role, QColor::fromRgb(tones.Disabled));
    palette.setColor(QPalette::Disabled, QPalette::Base, window);
    palette.setColor(QPalette::Disabled, QPalette::AlternateBase, window);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor::fromRgb(tones.Disabled));
    return palette;
}

}  // namespace

Scheme SchemeOf(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness()
               ? Scheme::Dark
               : Scheme::Light;
}

QPalette CalmPalette(Scheme scheme, const Appearance& appearance) {
    Tones tones = scheme == Scheme::Dark ? DarkTones : LightTones;
    if (appearance.HighContrast) tones = WithHighContrast(tones, scheme);
    if (appearance.Accent.isValid()) tones = WithAccent(tones, appearance.Accent);
    return PaletteOf(tones);
}

QPalette CalmPalette(const QPalette& desktop) { return PaletteOf(TonesOf(desktop)); }

void ApplyTheme(Scheme scheme) {
    InstallReach();
    QApplication::setStyle(new CalmStyle);
    QApplication::setPalette(CalmPalette(scheme));
}

}  // namespace orvelle
