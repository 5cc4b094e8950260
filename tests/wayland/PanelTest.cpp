// A whole panel in a session without any X server: what asks one elsewhere does without it.
#include <gtest/gtest.h>
#include <unistd.h>

#include <QApplication>
#include <QLabel>
#include <QTemporaryDir>
#include <QWindow>

#include "adapters/linux/KernelKeyboard.h"
#include "apps/PanelProgram.h"
#include "apps/ThisProcess.h"
#include "platform/sides/HeldKeysSide.h"
#include "tests/qt/shell/WidgetInput.h"

namespace orvelle {
namespace {

constexpr const char* NoKeys =
    "In this Wayland session no key can be pressed on this computer, until this user may write to /dev/uinput.";
constexpr Long Minimised = 7;

class PanelInWayland : public testing::Test {
protected:
    static bool IsShown(const QWidget& window) { return window.isVisible() && window.windowHandle()->isExposed(); }
    // The small window that stands in for the notification area.
    static QWidget* StandIn() {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->objectName() == "StandInIcon" && IsShown(*window)) return window;
        return nullptr;
    }
    static bool MayMakeKeyboards() { return access(linux::KernelKeyboard::File, W_OK) == 0; }

    QTemporaryDir folder;
    ThisProcess process;
    PanelProgram house{process, folder.filePath("settings.sqlite").toStdString()};
};

TEST_F(PanelInWayland, ShowsItsWindowsAndTellsBesideItsIconWhatKeepsKeysBack) {
    EXPECT_EQ(process.MissingDisplay(), "");
    EXPECT_EQ(QGuiApplication::platformName(), "wayland");
    house.Open();
    EXPECT_TRUE(WaitFor([this] { return IsShown(house.Desktop.Window()) && house.Deck && IsShown(*house.Deck); }));
    ASSERT_TRUE(WaitFor([] { return StandIn() != nullptr; }));
    const QString words = StandIn()->findChild<QLabel*>()->text();
    EXPECT_EQ(words == NoKeys, !MayMakeKeyboards()) << words.toStdString();
}

TEST_F(PanelInWayland, StartsProgramsMinimisedAndStrikesKeysWithoutAServer) {
    std::string told;
    house.Computer.KeysTold = [&](const std::string& sentence) { told += sentence; };
    house.Open();
    ASSERT_TRUE(WaitFor([this] { return IsShown(house.Desktop.Window()); }));
    EXPECT_GT(house.Computer.Processes().WinExec("/bin/true", Minimised), 31);
    constexpr Long F24 = 118;
    Keyboard& keyboard = house.Computer.Keyboard();
    const Long key = keyboard.MapVirtualKeyA(F24, MapScanCodeToVirtualKeyExtended);
    keyboard.keybd_event(key, F24, KeyEventExtended, 0);
    EXPECT_EQ(house.Computer.HeldKeys().HeldKeys().empty(), !MayMakeKeyboards());
    keyboard.keybd_event(key, F24, KeyEventExtended | KeyEventUp, 0);
    EXPECT_TRUE(house.Computer.HeldKeys().HeldKeys().empty());
    EXPECT_EQ(keyboard.GetKeyNameTextA(30 << 16, 255), "A");
    const char* const once = MayMakeKeyboards() ? "" : NoKeys;
    EXPECT_EQ(told, once);
}

}  // namespace
}  // namespace orvelle
