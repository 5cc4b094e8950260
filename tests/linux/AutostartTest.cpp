#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
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
}

}  // namespace
}  // namespace orvelle::linux
