#include "adapters/looks/PortalAppearance.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <utility>

namespace orvelle {

namespace {

const QString Service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString Path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString Settings = QStringLiteral("org.freedesktop.portal.Settings");
const QString Place = QStringLiteral("org.freedesktop.appearance");

using Places = QMap<QString, QVariantMap>;

constexpr uint PrefersDark = 1;
constexpr uint PrefersLight = 2;
constexpr uint PrefersContrast = 1;

// Three parts from 0 to 1; others mean none.
QColor ColourOf(const QVariant& value) {
    if (value.metaType() != QMetaType::fromType<QDBusArgument>()) return {};
    const auto parts = value.value<QDBusArgument>();
    if (parts.currentSignature() != QLatin1String("(ddd)")) return {};
    double red = -1;
    double green = -1;
    double blue = -1;
    parts.beginStructure();
    parts >> red >> green >> blue;
    parts.endStructure();
    for (const double part : {red, green, blue})
        if (!(part >= 0 && part <= 1)) return {};
    return QColor::fromRgbF(static_cast<float>(red), static_cast<float>(green), static_cast<float>(blue));
}

}  // namespace

PortalAppearance::PortalAppearance(std::function<void()> whenChanged) : changed(std::move(whenChanged)) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return;
    bus.connect(Service, Path, Settings, QStringLiteral("SettingChanged"), this, SLOT(SettingChanged(QDBusMessage)));
    QDBusMessage question = QDBusMessage::createMethodCall(Service, Path, Settings, QStringLiteral("ReadAll"));
    question << QStringList{Place};
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, &PortalAppearance::Answered);
}

void PortalAppearance::Answered(QDBusPendingCallWatcher* answer) {
    answer->deleteLater();
    const QDBusMessage reply = answer->reply();
    if (reply.type() != QDBusMessage::ReplyMessage || reply.signature() != QLatin1String("a{sa{sv}}")) return;
    const QVariantMap settings = qdbus_cast<Places>(reply.arguments().constFirst()).value(Place);
    for (auto setting = settings.begin(); setting != settings.end(); ++setting) Take(setting.key(), setting.value());
    if (!settings.isEmpty()) changed();
}

void PortalAppearance::SettingChanged(const QDBusMessage& message) {
    const QVariantList parts = message.arguments();
    if (message.signature() != QLatin1String("ssv") || parts[0].toString() != Place) return;
    Take(parts[1].toString(), parts[2].value<QDBusVariant>().variant());
    changed();
}

void PortalAppearance::Take(const QString& key, const QVariant& value) {
    if (key == QLatin1String("color-scheme")) {
        const uint scheme = value.toUInt();
        wished.Wanted.reset();
        if (scheme == PrefersDark) wished.Wanted = Scheme::Dark;
        if (scheme == PrefersLight) wished.Wanted = Scheme::Light;
    } else if (key == QLatin1String("contrast")) {
        wished.HighContrast = value.toUInt() == PrefersContrast;
    } else if (key == QLatin1String("accent-color")) {
        wished.Accent = ColourOf(value);
    }
}

}  // namespace orvelle
