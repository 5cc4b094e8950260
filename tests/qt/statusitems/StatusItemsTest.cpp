// The icon as a status item on the session bus, and the stand-in while there is no host for it.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusVariant>
#include <QPixmap>
#include <QProcess>

#include "adapters/qt/services/QtTray.h"
#include "platform/controls/Form.h"
#include "tests/qt/shell/Waiting.h"

namespace orvelle::qt {
namespace {

constexpr const char* WatcherName = "org.kde.StatusNotifierWatcher";
constexpr const char* WatcherPath = "/StatusNotifierWatcher";
constexpr Long CallbackMessage = 1125;

bool StandInShows() {
    for (const QWidget* widget : QApplication::topLevelWidgets())
        if (widget->objectName() == "StandInIcon" && widget->isVisible()) return true;
    return false;
}

QDBusMessage ToWatcher(const char* interface, const char* method, const QVariantList& arguments) {
    QDBusMessage message = QDBusMessage::createMethodCall(WatcherName, WatcherPath, interface, method);
    message.setArguments(arguments);
    return message;
}

// The bus name of the item that was registered last.
QString RegisteredItem() {
    const QDBusMessage answer = QDBusConnection::sessionBus().call(
        ToWatcher("org.freedesktop.DBus.Properties", "Get", {WatcherName, "RegisteredStatusNotifierItems"}));
    const QStringList items = answer.arguments().value(0).value<QDBusVariant>().variant().toStringList();
    return items.isEmpty() ? QString() : items.constLast();
}

// What a desktop calls when the user clicks the item.
void CallItem(const char* method) {
    QDBusMessage click =
        QDBusMessage::createMethodCall(RegisteredItem(), "/StatusNotifierItem", "org.kde.StatusNotifierItem", method);
    click << 10 << 10;
    QDBusConnection::sessionBus().asyncCall(click);
}

class WatcherProgram {
public:
    WatcherProgram() {
        process.start(WATCHER, {});
        EXPECT_TRUE(ComesTrue(
            [] { return QDBusConnection::sessionBus().interface()->isServiceRegistered(WatcherName).value(); }));
    }
    ~WatcherProgram() {
        process.kill();
        process.waitForFinished();
    }

private:
    QProcess process;
};

struct HookedWindow : Control {
    explicit HookedWindow(Form& form) : Control(form, "ST") {}
    std::vector<Long> Messages;
};

TEST(StatusItemsTest, TheIconFollowsTheHostAndTakesItsClicks) {
    WindowTable table;
    Form form("form", "");
    HookedWindow window(form);
    const WindowProcedure procedure = [](Control& control, Long, Long, Long lParam) -> Long {
        static_cast<HookedWindow&>(control).Messages.push_back(lParam);
        return 0;
    };
    table.SetLong(window, WindowProcedureIndex, reinterpret_cast<std::intptr_t>(procedure));
    QtTray tray(table, [](const Picture&) { return QIcon(QPixmap(16, 16)); });
    NotifyIconData record;
    record.Window = &window;
    record.Flags = NotifyIconMessage | NotifyIconTip;
    record.CallbackMessage = CallbackMessage;
    record.Tip = "Orvelle";

    // The program was started before the desktop was complete.
    tray.Shell_NotifyIconA(NotifyIconAdd, record);
    ASSERT_TRUE(ComesTrue([] { return StandInShows(); }));
    {
        WatcherProgram watcher;
        ASSERT_TRUE(ComesTrue([] { return !StandInShows(); }));
        ASSERT_TRUE(ComesTrue([] { return !RegisteredItem().isEmpty(); }));
        CallItem("Activate");
        EXPECT_TRUE(ComesTrue([&] { return window.Messages == std::vector<Long>{513}; }));
        CallItem("ContextMenu");
        EXPECT_TRUE(ComesTrue([&] { return window.Messages == std::vector<Long>{513, 516}; }));

        QDBusConnection::sessionBus().asyncCall(ToWatcher(WatcherName, "SetHost", {false}));
        EXPECT_TRUE(ComesTrue([] { return StandInShows(); }));
        QDBusConnection::sessionBus().asyncCall(ToWatcher(WatcherName, "SetHost", {true}));
        EXPECT_TRUE(ComesTrue([] { return !StandInShows(); }));
    }
    ASSERT_TRUE(ComesTrue([] { return StandInShows(); }));
    {
        WatcherProgram watcher;
        ASSERT_TRUE(ComesTrue([] { return !StandInShows(); }));
        ASSERT_TRUE(ComesTrue([] { return !RegisteredItem().isEmpty(); }));
        window.Messages.clear();
        CallItem("Activate");
        EXPECT_TRUE(ComesTrue([&] { return window.Messages == std::vector<Long>{513}; }));
        tray.Shell_NotifyIconA(NotifyIconDelete, record);
    }
    EXPECT_FALSE(StandInShows());
}

}  // namespace
}  // namespace orvelle::qt

int main(int argumentCount, char** arguments) {
    testing::InitGoogleTest(&argumentCount, arguments);
    QApplication application(argumentCount, arguments);
    return RUN_ALL_TESTS();
}
