#include "adapters/qt/widgets/StatusLine.h"

#include "platform/controls/Label.h"

namespace orvelle::qt {

void StatusLine::SetForeColor(Long color) {
    isBad = color != ButtonTextColour;
    update();
}

void StatusLine::SetKey(const QString& pictureKey) {
    key = pictureKey;
    update();
}

Sign StatusLine::ShownSign() const {
    if (text().isEmpty()) return Sign::Off;
    if (isBad) return Sign::Bad;
    if (place >= key.size()) return Sign::Off;
    if (key[place] == QLatin1Char('Y')) return Sign::Waiting;
    return key[place] == QLatin1Char('V') ? Sign::Good : Sign::Off;
}

}  // namespace orvelle::qt
