#include "apps/simulator/DirectoryRows.h"

#include <QStringList>

#include "adapters/looks/Text.h"

namespace orvelle {

namespace {

constexpr long long Minute = 60;
constexpr long long Hour = 60 * Minute;
constexpr long long Day = 24 * Hour;

QString Mistakes(std::size_t count) {
    return count == 1 ? QString("1 mistake") : QString("%1 mistakes").arg(static_cast<qulonglong>(count));
}

QString Since(long long seconds) {
    if (seconds < 0) return "-";
    if (seconds < Minute) return "now";
    if (seconds < Hour) return QString("%1 min").arg(seconds / Minute);
    if (seconds < 2 * Day) return QString("%1 h").arg(seconds / Hour);
    return QString("%1 days").arg(seconds / Day);
}

}  // namespace

QString AgeWords(const directory::DirectoryTold& told) { return Since(told.Age) + (told.IsCopy ? ", a copy" : ""); }

Sign SignOf(const directory::DirectoryTold& told) {
    if (told.Age < 0 && !told.Trouble.empty()) return Sign::Bad;
    if (!told.Trouble.empty() || told.FaultCount > 0) return Sign::Waiting;
    return told.Age < 0 ? Sign::Off : Sign::Good;
}

QString TroubleWords(const directory::DirectoryTold& told) {
    if (!told.Trouble.empty()) return ToQt(told.Trouble);
    if (told.Age < 0) return "Not there yet";
    return told.FaultCount == 0 ? QString("None") : Mistakes(told.FaultCount);
}

QString FaultWords(const directory::DirectoryTold& told) {
    QStringList lines;
    if (!told.Trouble.empty()) lines << ToQt(told.Trouble);
    for (const directory::Fault& fault : told.Faults)
        lines << QString("Line %1").arg(static_cast<qulonglong>(fault.Line)) +
                     (fault.Field.empty() ? QString() : ", " + ToQt(fault.Field)) + ": " + ToQt(fault.Sentence);
    if (told.FaultCount > told.Faults.size())
        lines << "And " + Mistakes(told.FaultCount - told.Faults.size()) + " more.";
    return lines.join("\n");
}

}  // namespace orvelle
