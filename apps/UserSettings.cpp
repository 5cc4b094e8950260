#include "apps/UserSettings.h"

#include <QStandardPaths>

#include "adapters/looks/Text.h"

namespace orvelle {

std::string UserSettings::File() {
    return FromQt(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)) + "/OrvelleCP/settings.sqlite";
}

}  // namespace orvelle
