// Light or dark, accent and contrast as the desktop's portal tells them (org.freedesktop.appearance), asked for once
// and then heard of. Nothing waits for the answer; without a bus or a portal nothing is ever told.
#pragma once

#include <QDBusMessage>
#include <QObject>
#include <functional>

#include "adapters/looks/Theme.h"

class QDBusPendingCallWatcher;

namespace orvelle {

class PortalAppearance : public QObject {
    Q_OBJECT

public:
    // `whenChanged` comes from the loop.
    explicit PortalAppearance(std::function<void()> whenChanged);

    const Appearance& Wished() const { return wished; }

private slots:
    void Answered(QDBusPendingCallWatcher* answer);
    void SettingChanged(const QDBusMessage& message);

private:
    void Take(const QString& key, const QVariant& value);

    std::function<void()> changed;
    Appearance wished;
};

}  // namespace orvelle
