// One picture of several computers' screens side by side, each under a caption that names it.
#pragma once

#include <QImage>
#include <QString>
#include <vector>

namespace orvelle {

struct CaptionedScreen {
    QString Name;
    QString State;  // one line
    QImage Screen;  // none for a computer without power
};

QImage SideBySide(const std::vector<CaptionedScreen>& screens);

}  // namespace orvelle
