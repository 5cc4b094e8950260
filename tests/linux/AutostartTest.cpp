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
#include <map>

#include "adapters/linux/DesktopAutostart.h"
#include "platform/RegistryPaths.h"

namespace orvelle::linux {
namespace {

// Keeps texts of one root; numbers pass through it.
class KeptRegistry : public Registry {
public:
    void WriteRegistryString(Long, const std::string& path, const std::string& name,
                             const std::string& value) override {
        texts[path + '\\' + name] = value;
    }
    std::string ReadRegistryString(Long, const std::string& path, const std::string& name,
                                   const std::string& defaultValue) override {
        const auto found = texts.find(path + '\\' + name);
        return found == texts.end() ? defaultValue : found->second;
    }
    void DeleteRegistryValue(Long, const std::string& path, const std::string& name) override {
        texts.erase(path + '\\' + name);
    }
    void WriteRegistryLong(Long, const std::string&, const std::string&, Long value) override { number = value; }
    Long ReadRegistryLong(Long, const std::string&, const std::string&, Long) override { return number; }
    std::string ReadRegistryDefault(const std::string& path, const std::string& name,
                                    const std::string& defaultValue) override {
        return ReadRegistryString(LocalMachine, path, name, defaultValue);
    }

private:
    std::map<std::string, std::string> texts;
    Long number = 0;
};

class DesktopAutostartTest : public testing::Test {
protected:
    DesktopAutostartTest() {
        registry.Told = [this](const std::string& sentence) { told += sentence; };
    }
    ~DesktopAutostartTest() override { std::filesystem::remove_all(folder); }

    std::string Entry() const {
        std::ifstream file(folder + "/autostart/OrvelleCP.desktop");
        return {std::istreambuf_iterator<char>(file), {}};
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
    EXPECT_EQ(Entry(), "[Desktop Entry]\nType=Application\nName=OrvelleCP\nExec=\"/opt/orvelle panel\" -MIN\n");
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
