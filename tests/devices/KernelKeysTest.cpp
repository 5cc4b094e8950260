// How the keyboard in the kernel is made, and that it serves in a Wayland session: against a /dev/uinput that no kernel
// has, which notes what is asked of it and gives back the events that it was told.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/uinput.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <umockdev.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <mutex>
#include <set>
#include <string>

#include "adapters/linux/KernelKeyboard.h"
#include "adapters/linux/X11Keyboard.h"
#include "adapters/shared/ScanCodes.h"
#include "tests/shared/HandLoop.h"

namespace orvelle::linux {
namespace {

class MockedKernel {
public:
    MockedKernel() : testbed(umockdev_testbed_new()), answers(umockdev_ioctl_base_new()) {
        umockdev_testbed_add_from_string(
            testbed, "P: /devices/virtual/misc/uinput\nN: uinput\nE: DEVNAME=/dev/uinput\nE: SUBSYSTEM=misc\n",
            nullptr);
        g_signal_connect(answers, "handle-ioctl", G_CALLBACK(&MockedKernel::Answer), this);
        EXPECT_TRUE(umockdev_testbed_attach_ioctl(testbed, "/dev/uinput", answers, nullptr));
    }
    MockedKernel(const MockedKernel&) = delete;
    MockedKernel& operator=(const MockedKernel&) = delete;
    ~MockedKernel() {
        umockdev_testbed_detach_ioctl(testbed, "/dev/uinput", nullptr);
        g_object_unref(answers);
        g_object_unref(testbed);
    }

    struct Keyboard {
        std::set<int> Keys;
        std::string Name;
        bool IsMade = false;
    };
    Keyboard Asked() {
        const std::lock_guard<std::mutex> lock(mutex);
        return asked;
    }
    // The next event; it is there already, or the call waits for the test's own end.
    input_event Next() {
        input_event event{};
        EXPECT_EQ(read(umockdev_testbed_get_dev_fd(testbed, "/dev/uinput"), &event, sizeof event),
                  static_cast<ssize_t>(sizeof event));
        return event;
    }

private:
    // On the mocking library's thread.
    static gboolean Answer(UMockdevIoctlBase*, UMockdevIoctlClient* client, gpointer self) {
        static_cast<MockedKernel*>(self)->Note(umockdev_ioctl_client_get_request(client),
                                               umockdev_ioctl_client_get_arg(client));
        umockdev_ioctl_client_complete(client, 0, 0);
        return TRUE;
    }
    void Note(gulong request, UMockdevIoctlData* argument) {
        const std::lock_guard<std::mutex> lock(mutex);
        if (request == UI_SET_KEYBIT) asked.Keys.insert(static_cast<int>(*reinterpret_cast<gulong*>(argument->data)));
        if (request == UI_DEV_CREATE) asked.IsMade = true;
        if (request != UI_DEV_SETUP) return;
        UMockdevIoctlData* const setup = umockdev_ioctl_data_resolve(argument, 0, sizeof(uinput_setup), nullptr);
        asked.Name = reinterpret_cast<const uinput_setup*>(setup->data)->name;
        g_object_unref(setup);
    }

    UMockdevTestbed* testbed;
    UMockdevIoctlBase* answers;
    std::mutex mutex;
    Keyboard asked;
};

TEST(KernelKeysTest, AreThoseThatHaveAScanCodeOnAKeyboardOfAKnownName) {
    MockedKernel kernel;
    const KernelKeyboard keyboard(KernelKeyboard::File);
    EXPECT_EQ(keyboard.Problem(), "");
    const MockedKernel::Keyboard asked = kernel.Asked();
    EXPECT_TRUE(asked.IsMade);
    EXPECT_EQ(asked.Name, KernelKeyboard::Name);
    std::set<int> expected;
    for (int key = 1; key < KeyCodes; ++key)
        if (ScanCodeOfLinuxKey(key) != 0) expected.insert(key);
    EXPECT_EQ(asked.Keys, expected);
}

// A session that answers, by its socket alone.
class WaylandSession : public testing::Test {
protected:
    WaylandSession() {
        EXPECT_NE(mkdtemp(folder.data()), nullptr);
        const std::string file = folder + "/wayland-test";
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::ranges::copy(file, address.sun_path);
        EXPECT_EQ(bind(door.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
        EXPECT_EQ(listen(door.Number(), 5), 0);
        setenv("WAYLAND_DISPLAY", file.c_str(), 1);
        unsetenv("DISPLAY");
    }
    ~WaylandSession() override { std::filesystem::remove_all(folder); }

    std::string folder = testing::TempDir() + "wayland-XXXXXX";
    const FileDescriptor door{socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)};
    MockedKernel kernel;
    HandLoop loop;
};

TEST_F(WaylandSession, HasThePanelsStrokesOnTheKeyboardInTheKernel) {
    X11Keyboard keyboard(loop, "", KEY_GUARD);
    std::string told;
    keyboard.Keys.Told = keyboard.Keys.LimitTold = [&](const std::string& sentence) { told += sentence; };
    keyboard.Keys.Begin();
    constexpr Long F12 = 88;
    keyboard.keybd_event(0, F12, KeyEventExtended, 0);
    EXPECT_EQ(keyboard.HeldKeys(), std::vector<std::string>{"F12"});
    const input_event down = kernel.Next();
    EXPECT_TRUE(down.type == EV_KEY && down.code == KEY_F12 && down.value == 1);
    EXPECT_EQ(kernel.Next().type, EV_SYN);
    keyboard.Keys.ReleaseAll();
    const input_event up = kernel.Next();
    EXPECT_TRUE(up.type == EV_KEY && up.code == KEY_F12 && up.value == 0);
    EXPECT_TRUE(keyboard.HeldKeys().empty());
    EXPECT_EQ(told, "");
}

TEST_F(WaylandSession, IsNotAskedWhereADisplayIsNamed) {
    X11Keyboard keyboard(loop, ":65000", KEY_GUARD);
    std::string told;
    keyboard.Keys.Told = [&](const std::string& sentence) { told += sentence; };
    keyboard.Keys.Begin();
    EXPECT_EQ(told, "There is no X server to reach, so no key can be pressed on this computer.");
    EXPECT_FALSE(kernel.Asked().IsMade);
}

}  // namespace
}  // namespace orvelle::linux
