#include "adapters/looks/DesktopTheme.h"

#include <QApplication>
#include <QEvent>
#include <QStyle>
#include <utility>

#include "adapters/looks/PortalAppearance.h"

namespace orvelle {

DesktopTheme::DesktopTheme() {
    const QPalette desktop = QGuiApplication::palette();
    ApplyTheme(SchemeOf(desktop));
    Follow(desktop);
    qApp->installEventFilter(this);
}

DesktopTheme::~DesktopTheme() = default;

bool DesktopTheme::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ApplicationPaletteChange && watched == qApp) {
        FollowLater();
    } else if (event->type() == QEvent::ThemeChange) {
        isThemeChanged = true;
        FollowLater();
    }
    return QObject::eventFilter(watched, event);
}

// The style's own palette is what Qt takes where the platform brings none.
bool DesktopTheme::BringsPalette(const QPalette& palette) const {
    const QPalette standard = QApplication::style()->standardPalette();
    for (const QPalette::ColorRole role :
         {QPalette::Window, QPalette::Base, QPalette::WindowText, QPalette::Button, QPalette::Highlight})
        if (palette.color(QPalette::Active, role) != standard.color(QPalette::Active, role)) return true;
    return false;
}

QPalette DesktopTheme::PlatformPalette() {
    QApplication::setPalette(QPalette());
    return QGuiApplication::palette();
}

void DesktopTheme::FollowLater() {
    if (std::exchange(isFollowDue, true)) return;
    const auto follow = [this] {
        const QPalette desktop = std::exchange(isThemeChanged, false) ? PlatformPalette() : QGuiApplication::palette();
        isFollowDue = false;
        // The change may be our own.
        if (desktop != ours) Follow(desktop);
    };
    QMetaObject::invokeMethod(this, follow, Qt::QueuedConnection);
}

void DesktopTheme::Follow(const QPalette& desktop) {
    QPalette palette;
    if (BringsPalette(desktop)) {
        portal.reset();
        palette = CalmPalette(desktop);
    } else {
        if (!portal) portal = std::make_unique<PortalAppearance>([this, desktop] { Follow(desktop); });
        const Appearance& wished = portal->Wished();
        palette = CalmPalette(wished.Wanted.value_or(SchemeOf(desktop)), wished);
    }
    QApplication::setPalette(palette);
    ours = QGuiApplication::palette();
}

}  // namespace orvelle
