#include "apps/simulator/ChoiceWords.h"

#include <QStringList>

#include "adapters/looks/Text.h"
#include "deck/pages/RadioRemarks.h"
#include "simulators/directory/Channels.h"

namespace orvelle {

namespace {

constexpr double FirstWholeMiles = 100;

QString Number(double miles) {
    const QString text = QString::number(miles, 'f', miles < FirstWholeMiles ? 1 : 0);
    return text.endsWith(".0") ? text.chopped(2) : text;
}

// The station, how far away it is, and how far it reaches.
QString StationWords(const directory::Choice& choice) {
    QString words = ToQt(choice.Station);
    if (choice.Distance) words += ", " + NauticalMiles(*choice.Distance);
    if (choice.Distance && choice.Range) words += " of " + Number(*choice.Range);
    return words;
}

}  // namespace

QString NauticalMiles(double miles) { return Number(miles) + " nm"; }

QString ChoiceWords(const directory::Choice& choice, int kilohertz) {
    using directory::Reason;
    const QString channel = ToQt(directory::Megahertz(kilohertz));
    switch (choice.Why) {
        case Reason::NoDirectory:
            return "";
        case Reason::NotTuned:
            return kilohertz == 0 ? QString("not tuned") : channel + " is none of the radios' channels";
        case Reason::Station:
            return StationWords(choice);
        case Reason::HeldStation:
            return StationWords(choice) + ", kept a little beyond its range";
        case Reason::OnlyStation:
            return ToQt(choice.Station) + ", the only station of " + channel + ", as no place is known";
        case Reason::Everywhere:
            return "valid everywhere";
        case Reason::Otherwise:
            return "what the directory has for all others";
        case Reason::NoneInRange:
            return "the nearest is " + ToQt(choice.Station) +
                   (choice.Distance ? ", " + NauticalMiles(*choice.Distance) + " away" : QString()) +
                   (choice.Range ? ", which reaches " + Number(*choice.Range) : QString());
        case Reason::PlaceUnknown:
            return "several stations of " + channel + ", and no place is known";
        case Reason::NotListed:
            return "not listed";
    }
    return "";
}

QString RecordWords(const RadioVoiceSetting& record) {
    QString words = deck::SoftwareName(record.Software);
    if (record.Software == NoVoice) return words;
    if (!record.Server.empty()) words += " at " + ToQt(record.Server);
    if (!record.Channel.empty()) words += ", " + ToQt(record.Channel);
    if (!record.Login.empty()) words += ", as " + ToQt(record.Login);
    return words;
}

}  // namespace orvelle
