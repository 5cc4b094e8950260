#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

#include "adapters/linux/DesktopAutostart.h"
#include "adapters/linux/KeyFile.h"
#include "platform/RegistryPaths.h"
#include "tests/linux/KeptRegistry.h"

namespace orvelle::linux {
namespace {

class DesktopAutostartTest : public testing::Test {
protected:
    DesktopAutostartTest() {
        registry.Told = [this](const std::string& sentence) { told += sentence; };
    }
    ~DesktopAutostartTest() override { std::filesystem::remove_all(folder); }

    std::string Entry() const { return KeyFile::TextOf(folder + "/autostart/OrvelleCP.desktop"); }
    void EditEntry(const std::string& text) const {
        std::filesystem::create_directories(folder + "/autostart");
        std::ofstream(folder + "/autostart/OrvelleCP.desktop") << text;
    }
    std::string RunValue() { return registry.ReadRegistryString(LocalMachine, RunPath, "OrvelleCP", ""); }
    void SetRunValue(const std::string& value) {
        registry.WriteRegistryString(LocalMachine, RunPath, "OrvelleCP", value);
    }

    static std::string NewFolder() {
        std::string name = testing::TempDir() + "autostart-XXXXXX";
        return mkdtemp(name.data());
    }

    const std::string folder = NewFolder();
    std::string told;
    KeptRegistry kept;
    DesktopAutostart registry{kept, folder + "/autostart"};
};

TEST_F(DesktopAutostartTest, ARunValueIsAnEntryUntilItIsDeleted) {
    registry.WriteRegistryString(LocalMachine, RunPath, "OrvelleCP", "\"/opt/orvelle panel\" -MIN");
    EXPECT_EQ(KeyFile(Entry()).Text(DesktopEntryGroup, "Exec"), "\"/opt/orvelle panel\" -MIN");
    EXPECT_EQ(registry.ReadRegistryString(LocalMachine, RunPath, "OrvelleCP", ""), "\"/opt/orvelle panel\" -MIN");
    registry.DeleteRegistryValue(LocalMachine, RunPath, "OrvelleCP");
    EXPECT_EQ(Entry(), "");
    EXPECT_EQ(registry.ReadRegistryString(LocalMachine, RunPath, "OrvelleCP", "none"), "none");
    registry.DeleteRegistryValue(LocalMachine, RunPath, "OrvelleCP");
}

TEST_F(DesktopAutostartTest, WhatAnEntryWouldReadOtherwiseIsEscaped) {
    registry.WriteRegistryString(LocalMachine, RunPath, "OrvelleCP", R"("/a$b`c\d%e")");
    EXPECT_NE(Entry().find(R"(Exec="/a\\$b\\`c\\\\d%%e")"), std::string::npos) << Entry();
}

TEST_F(DesktopAutostartTest, AnEntryThatTheUserTookAwayIsNoValue) {
    registry.WriteRegistryString(LocalMachine, RunPath, "OrvelleCP", "panel");
    std::filesystem::remove(folder + "/autostart/OrvelleCP.desktop");
    EXPECT_EQ(registry.ReadRegistryString(LocalMachine, RunPath, "OrvelleCP", ""), "");
}

TEST_F(DesktopAutostartTest, TheEntryIsCalledAndLooksAsInTheMenu) {
    SetRunValue("panel");
    const KeyFile entry(Entry());
    const KeyFile menu = KeyFile::Read(MENU_ENTRY);
    for (const char* const key : {"Type", "Name", "Comment", "Icon"}) {
        EXPECT_EQ(entry.Text(DesktopEntryGroup, key), menu.Text(DesktopEntryGroup, key)) << key;
        EXPECT_NE(entry.Text(DesktopEntryGroup, key), "") << key;
    }
}

TEST_F(DesktopAutostartTest, AnEntryThatSomebodyElseMadeIsAValue) {
    EditEntry("[Desktop Entry]\nType=Application\nExec=nice \"/opt/a\\\\$b%%/panel\"\n");
    EXPECT_EQ(RunValue(), "nice \"/opt/a$b%/panel\"");
}

TEST_F(DesktopAutostartTest, EveryValueComesBackFromItsEntry) {
    for (const char* const value : {R"("/a$b`c\d%e" -MIN)", R"("/a\\%%b")", "panel", R"("/ö ü/panel" -MIN)"}) {
        SetRunValue(value);
        EXPECT_EQ(RunValue(), value) << Entry();
    }
}

// Each of them switches an entry off for some desktop's session, or is none that a session starts.
TEST_F(DesktopAutostartTest, AnEntryThatIsSwitchedOffIsNoValueAndStaysAsItIs) {
    for (const char* const off :
         {"[Desktop Entry]\nExec=panel\nHidden=true\n",
          "[Desktop Entry]\nExec=panel\nX-GNOME-Autostart-enabled = false\n", "", "no entry",
          "[Desktop Entry]\nName=without a command line\n", "[Desktop Action a]\nExec=panel\n"}) {
        SetRunValue("panel");
        EditEntry(off);
        EXPECT_EQ(RunValue(), "") << off;
        EXPECT_EQ(Entry(), off);
    }
}

TEST_F(DesktopAutostartTest, TickingAgainSwitchesAnEntryOnAndKeepsTheRest) {
    EditEntry(
        "# mine\n[Desktop Entry]\nName=Radios\nHidden=true\nExec=nice panel\nX-GNOME-Autostart-enabled=false\n"
        "X-GNOME-Autostart-Delay=5\n\n[Desktop Action a]\nHidden=true\n");
    SetRunValue("panel");
    EXPECT_EQ(Entry(),
              "# mine\n[Desktop Entry]\nName=Radios\nExec=nice panel\nX-GNOME-Autostart-Delay=5\n\n"
              "[Desktop Action a]\nHidden=true\n");
    EXPECT_EQ(RunValue(), "nice panel");
    EXPECT_EQ(kept.ReadRegistryString(LocalMachine, RunPath, "OrvelleCP", ""), "panel");
}

// The panel writes the value at each start, with the place where it lies then.
TEST_F(DesktopAutostartTest, AProgramThatMovedIsFollowedUnlessTheUserWroteAnotherCommandLine) {
    SetRunValue("\"/old/panel\" -MIN");
    EditEntry(Entry() + "Comment[de]=mein\n");
    SetRunValue("\"/new/panel\" -MIN");
    EXPECT_EQ(RunValue(), "\"/new/panel\" -MIN");
    EXPECT_NE(Entry().find("Comment[de]=mein\n"), std::string::npos) << Entry();

    EditEntry("[Desktop Entry]\nExec=nice panel\n");
    SetRunValue("\"/newer/panel\" -MIN");
    EXPECT_EQ(RunValue(), "nice panel");
}

TEST_F(DesktopAutostartTest, AnEntryOfAnEarlierVersionGetsNameAndIcon) {
    kept.WriteRegistryString(LocalMachine, RunPath, "OrvelleCP", "\"/old/panel\" -MIN");
    EditEntry("[Desktop Entry]\nType=Application\nName=OrvelleCP\nExec=\"/old/panel\" -MIN\n");
    SetRunValue("\"/old/panel\" -MIN");
    EXPECT_EQ(KeyFile(Entry()).Text(DesktopEntryGroup, "Name"), "Orvelle Control Panel");
    EXPECT_NE(KeyFile(Entry()).Text(DesktopEntryGroup, "Icon"), "");
    EXPECT_EQ(RunValue(), "\"/old/panel\" -MIN");
}

// Opening a pipe that nobody writes to would hold up the start.
TEST_F(DesktopAutostartTest, WhatIsNoFileIsNoEntry) {
    std::filesystem::create_directories(folder + "/autostart");
    const std::string entry = folder + "/autostart/OrvelleCP.desktop";
    ASSERT_EQ(mkfifo(entry.c_str(), 0600), 0);
    EXPECT_EQ(RunValue(), "");
    std::filesystem::remove(entry);
    std::filesystem::create_symlink("/dev/null", entry);
    EXPECT_EQ(RunValue(), "");
    SetRunValue("panel");
    EXPECT_EQ(RunValue(), "panel");
}

TEST_F(DesktopAutostartTest, OtherValuesMakeNoEntry) {
    registry.WriteRegistryString(LocalMachine, "SOFTWARE\\Orvelle", "OrvelleCPPath", "panel");
    registry.WriteRegistryLong(LocalMachine, "SOFTWARE\\Orvelle", "FS2004Compatible", 1);
    EXPECT_FALSE(std::filesystem::exists(folder + "/autostart"));
    EXPECT_EQ(registry.ReadRegistryString(LocalMachine, "SOFTWARE\\Orvelle", "OrvelleCPPath", ""), "panel");
    EXPECT_EQ(registry.ReadRegistryDefault("SOFTWARE\\Orvelle", "OrvelleCPPath", ""), "panel");
    EXPECT_EQ(registry.ReadRegistryLong(LocalMachine, "SOFTWARE\\Orvelle", "FS2004Compatible", 0), 1);
}

TEST_F(DesktopAutostartTest, WhereNoEntryCanBeMadeTheValueIsKeptForTheOthers) {
    std::ofstream(folder + "/autostart") << "in the way";
    registry.WriteRegistryString(LocalMachine, RunPath, "OrvelleCP", "panel");
    EXPECT_EQ(kept.ReadRegistryString(LocalMachine, RunPath, "OrvelleCP", ""), "panel");
    EXPECT_EQ(told, "The autostart entry " + folder +
                        "/autostart/OrvelleCP.desktop could not be written: "
                        "Not a directory.");
}

TEST_F(DesktopAutostartTest, AnEntryThatCannotBeTakenAwayIsTold) {
    std::filesystem::create_directories(folder + "/autostart/OrvelleCP.desktop/in the way");
    registry.DeleteRegistryValue(LocalMachine, RunPath, "OrvelleCP");
    EXPECT_EQ(told, "The autostart entry " + folder +
                        "/autostart/OrvelleCP.desktop could not be taken away: "
                        "Directory not empty.");
}

TEST_F(DesktopAutostartTest, EntryAndFolderAreTheUsersAlone) {
    const mode_t before = umask(0);
    registry.WriteRegistryString(LocalMachine, RunPath, "OrvelleCP", "panel");
    umask(before);
    using std::filesystem::perms;
    EXPECT_EQ(std::filesystem::status(folder + "/autostart").permissions(), perms::owner_all);
    EXPECT_EQ(std::filesystem::status(folder + "/autostart/OrvelleCP.desktop").permissions(),
              perms::owner_read | perms::owner_write);
}

// A file system of its own on the folder, as small as there is one. False where this system gives no namespaces.
bool GetSmallDisk(const std::string& folder) {
    if (unshare(CLONE_NEWNS) != 0) {
        const uid_t user = geteuid();
        const gid_t group = getegid();
        if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
        // The same user and group inside.
        std::ofstream("/proc/self/setgroups") << "deny";
        std::ofstream("/proc/self/uid_map") << user << ' ' << user << " 1";
        std::ofstream("/proc/self/gid_map") << group << ' ' << group << " 1";
    }
    // Where the root is no mount point, as in a folder that chroot has made the root, nothing can be said of it.
    mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr);
    return mount("none", folder.c_str(), "tmpfs", 0, "size=16k") == 0;
}

TEST_F(DesktopAutostartTest, OnAFullDiskTheGoodEntryStaysWholeAndItIsTold) {
    const auto trial = [this] {
        if (!GetSmallDisk(folder)) {
            std::cerr << "this system gives no namespaces";
            _exit(0);
        }
        registry.WriteRegistryString(LocalMachine, RunPath, "OrvelleCP", "good");
        const std::string good = Entry();
        std::ofstream filling(folder + "/filling");
        while (filling << 'x' << std::flush) continue;

        registry.WriteRegistryString(LocalMachine, RunPath, "OrvelleCP", std::string(5000, 'x'));
        const bool isWhole = Entry() == good && !good.empty();
        const std::filesystem::directory_iterator entries(folder + "/autostart");
        const bool isClean = std::distance(begin(entries), end(entries)) == 1;
        std::cerr << told << (isWhole ? " whole" : " broken") << (isClean ? " clean" : " littered");
        _exit(0);
    };
    EXPECT_EXIT(trial(), testing::ExitedWithCode(0), "could not be written: No space left on device\\. whole clean$");
}

}  // namespace
}  // namespace orvelle::linux
