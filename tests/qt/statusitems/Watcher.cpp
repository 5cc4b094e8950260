// A desktop's host of status items as far as tests need one: owns the watcher's name on the session bus, takes items,
// and tells by a property who registered.
#include <QCoreApplication>
#include <QDBusConnection>
#include <QObject>
#include <QStringList>

class Watcher : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered MEMBER hasHost)
    Q_PROPERTY(QStringList RegisteredStatusNotifierItems MEMBER items)

public slots:
    void RegisterStatusNotifierItem(const QString& item) { items.append(item); }
    // For the test: the host goes or comes while the watcher stays.
    void SetHost(bool isThere) {
        hasHost = isThere;
        isThere ? emit StatusNotifierHostRegistered() : emit StatusNotifierHostUnregistered();
    }

signals:
    void StatusNotifierHostRegistered();
    void StatusNotifierHostUnregistered();

private:
    bool hasHost = true;
    QStringList items;
};

int main(int argumentCount, char** arguments) {
    QCoreApplication application(argumentCount, arguments);
    Watcher watcher;
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.registerObject("/StatusNotifierWatcher", &watcher, QDBusConnection::ExportAllContents);
    if (!bus.registerService("org.kde.StatusNotifierWatcher")) return EXIT_FAILURE;
    return QCoreApplication::exec();
}

#include "Watcher.moc"
