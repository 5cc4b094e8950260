// Where the platform brings no palette, the desktop's portal is asked, on a session bus of the test's own.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QTest>

#include "adapters/looks/DesktopTheme.h"

namespace orvelle {

struct AccentParts {
    double Red, Green, Blue;
};

QDBusArgument& operator<<(QDBusArgument& argument, const AccentParts& parts) {
    argument.beginStructure();
    argument << parts.Red << parts.Green << parts.Blue;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, AccentParts& parts) {
    argument.beginStructure();
    argument >> parts.Red >> parts.Green >> parts.Blue;
    argument.endStructure();
    return argument;
}

}  // namespace orvelle

Q_DECLARE_METATYPE(orvelle::AccentParts)

namespace orvelle {

// The desktop's side of the settings.
class Portal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    Portal() {
        qDBusRegisterMetaType<QMap<QString, QVariantMap>>();
        qDBusRegisterMetaType<AccentParts>();
        bus.registerObject("/org/freedesktop/portal/desktop", this,
                           QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals);
        bus.registerService("org.freedesktop.portal.Desktop");
    }
    ~Portal() override { QDBusConnection::disconnectFromBus("portal"); }

    void Say(const QString& key, const QVariant& value) {
        Settings[key] = value;
        emit SettingChanged("org.freedesktop.appearance", key, QDBusVariant(value));
    }

    QVariantMap Settings;

public slots:
    QMap<QString, QVariantMap> ReadAll(const QStringList& places) {
        QMap<QString, QVariantMap> all;
        for (const QString& place : places) all[place] = Settings;
        return all;
    }

signals:
    void SettingChanged(const QString& place, const QString& key, const QDBusVariant& value);

private:
    QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "portal");
};

namespace {

bool WindowIs(const QPalette& palette) {
    return QTest::qWaitFor([&] { return QApplication::palette() == palette; }, 20'000);
}

TEST(PortalTest, LightOrDarkAccentAndContrastAreFollowed) {
    ASSERT_TRUE(QDBusConnection::sessionBus().isConnected());
    QApplication::setPalette(QPalette());
    Portal portal;
    portal.Settings["color-scheme"] = 1U;
    const DesktopTheme theme;
    EXPECT_TRUE(WindowIs(CalmPalette(Scheme::Dark)));

    portal.Say("color-scheme", 2U);
    EXPECT_TRUE(WindowIs(CalmPalette(Scheme::Light)));
    const QColor accent(0xe6, 0x2d, 0x42);
    portal.Say("accent-color", QVariant::fromValue(AccentParts{accent.redF(), accent.greenF(), accent.blueF()}));
    EXPECT_TRUE(WindowIs(CalmPalette(Scheme::Light, {std::nullopt, accent})));
    portal.Say("contrast", 1U);
    EXPECT_TRUE(WindowIs(CalmPalette(Scheme::Light, {std::nullopt, accent, true})));

    // What is out of range or of another type means none.
    portal.Say("accent-color", QVariant::fromValue(AccentParts{-1, 2, 0}));
    EXPECT_TRUE(WindowIs(CalmPalette(Scheme::Light, {std::nullopt, {}, true})));
    portal.Say("accent-color", QString("red"));
    portal.Say("contrast", 0U);
    EXPECT_TRUE(WindowIs(CalmPalette(Scheme::Light)));
}

}  // namespace
}  // namespace orvelle

#include "PortalTest.moc"
