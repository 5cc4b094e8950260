// The looks of a program that follows its desktop, from the start and live: palette, accent, contrast and font. A
// palette that the platform brings is kept in its main colours; where it brings none the desktop's portal is asked for
// light or dark, accent and contrast. The font is the desktop's by itself. Made by main functions before the first
// widget.
#pragma once

#include <QObject>
#include <memory>

#include "adapters/looks/Theme.h"

namespace orvelle {

class PortalAppearance;

class DesktopTheme : public QObject {
public:
    DesktopTheme();
    ~DesktopTheme() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool BringsPalette(const QPalette& palette) const;
    void Follow(const QPalette& desktop);
    // From the loop, once for all that are told of one change.
    void FollowLater();
    // The platform's palette, without ours in front of it.
    static QPalette PlatformPalette();

    QPalette ours;  // as it was set last
    bool isFollowDue = false;
    bool isThemeChanged = false;
    std::unique_ptr<PortalAppearance> portal;
};

}  // namespace orvelle
