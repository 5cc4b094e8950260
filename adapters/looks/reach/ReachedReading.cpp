#include "adapters/looks/reach/ReachedReading.h"

#include "adapters/looks/Text.h"

namespace orvelle {

QString ReachedReading::Words() const {
    if (reading != nullptr) return reading->Words();
    return label->buddy() == nullptr ? label->text() : WithoutMnemonic(label->text());
}

QString ReachedReading::text(QAccessible::Text kind) const {
    const QString said = ReachedWords::text(kind);
    if (kind != QAccessible::Name) return said;
    const QString words = Words();
    if (said.isEmpty()) return words;
    return words.isEmpty() ? said : said + QLatin1String(": ") + words;
}

QList<std::pair<QAccessibleInterface*, QAccessible::Relation>> ReachedReading::relations(
    QAccessible::Relation match) const {
    auto found = ReachedWords::relations(match);
    if (match.testFlag(QAccessible::Labelled) && label != nullptr && label->buddy() != nullptr)
        found.append({QAccessible::queryAccessibleInterface(label->buddy()), QAccessible::Labelled});
    return found;
}

}  // namespace orvelle
