#include "deck/fields/Frequencies.h"

#include <QRegularExpression>

#include "adapters/looks/Text.h"

namespace orvelle::deck {

namespace {

// kHz
constexpr int Lowest = 118'000;
constexpr int Highest = 136'990;
constexpr int Step = 25;     // each begins with the name of its 25 kHz channel
constexpr int NameStep = 5;  // of the channels within it
constexpr int NoName = 20;   // into a step: belongs to no channel
constexpr int WholeDigits = 3;

}  // namespace

std::optional<std::string> TunedFrequency(const std::string& typed) {
    const QString text = ToQt(typed).trimmed();
    if (text.isEmpty()) return "";
    static const QRegularExpression form("^([0-9]{3})(?:[.,]([0-9]{0,3}))?$");
    const QRegularExpressionMatch parts = form.match(text);
    if (!parts.hasMatch()) return std::nullopt;
    const QString decimals = parts.captured(2);
    int channel = (parts.captured(1) + decimals.leftJustified(WholeDigits, '0')).toInt();
    if (decimals.size() == WholeDigits - 1 && channel % Step == NoName) channel += NameStep;
    if (channel < Lowest || channel > Highest || channel % NameStep != 0 || channel % Step == NoName)
        return std::nullopt;
    const QString digits = QString::number(channel);
    return FromQt(digits.left(WholeDigits) + "." + digits.mid(WholeDigits));
}

}  // namespace orvelle::deck
