#include "adapters/linux/InstalledPrograms.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <fstream>

#include "adapters/linux/CommandLine.h"
#include "adapters/linux/EntryCommand.h"
#include "platform/RegistryPaths.h"
#include "tests/linux/KeptRegistry.h"

namespace orvelle::linux {
namespace {

namespace fs = std::filesystem;

constexpr const char* Claim = "MimeType=text/plain;x-scheme-handler/teamspeak;\n";

// A home and a system of the test's own, with programs in a folder of the program path.
class InstalledProgramsTest : public testing::Test {
protected:
    InstalledProgramsTest() {
        for (const char* const program : {"one", "two", "three"}) MakeProgram(program);
        setenv("PATH", (folder / "bin").c_str(), 1);
    }
    ~InstalledProgramsTest() override {
        setenv("PATH", pathBefore.c_str(), 1);
        fs::remove_all(folder);
    }

    static fs::path NewFolder() {
        std::string name = testing::TempDir() + "installed-XXXXXX";
        return mkdtemp(name.data());
    }
    void Write(const fs::path& file, const std::string& text) const {
        fs::create_directories((folder / file).parent_path());
        std::ofstream(folder / file) << text;
    }
    void MakeProgram(const std::string& name) const {
        Write("bin/" + name, "#!/bin/sh\n");
        fs::permissions(folder / "bin" / name, fs::perms::owner_all);
    }
    void WriteEntry(const fs::path& file, const std::string& rest) const {
        Write(file, "[Desktop Entry]\nType=Application\nName=A program\n" + rest);
    }
    std::string CommandOf(const std::string& exec) const {
        WriteEntry("entry.desktop", "Icon=picture\nExec=" + exec + "\n");
        return ShellCommandOf(folder / "entry.desktop");
    }
    std::string Program(const std::string& name) const { return '"' + (folder / "bin" / name).string() + '"'; }
    std::string TeamSpeak() { return registry.ReadRegistryDefault(TeamSpeakCommandPath, "", ""); }
    std::string RogerWilco() { return registry.ReadRegistryDefault(RogerWilcoPath, "", "none"); }

    const std::string pathBefore = std::getenv("PATH");
    const fs::path folder = NewFolder();
    const BaseFolders folders{{folder / "config", folder / "xdg"}, {folder / "data", folder / "share"}, {"plane"}};
    KeptRegistry kept;
    InstalledPrograms registry{kept, folders};
};

TEST_F(InstalledProgramsTest, WhereNothingIsInstalledTheDefaultIsTheAnswer) {
    EXPECT_EQ(TeamSpeak(), "");
    EXPECT_EQ(RogerWilco(), "none");
    EXPECT_EQ(registry.ReadRegistryDefault(FrameworkPath, "", "other"), "other");
}

TEST_F(InstalledProgramsTest, AnApplicationThatOffersTheUrlsIsFound) {
    WriteEntry("share/applications/speak.desktop", std::string(Claim) + "Exec=one --url %u\n");
    EXPECT_EQ(TeamSpeak(), Program("one") + " --url \"%1\"");
}

TEST_F(InstalledProgramsTest, AValueOfTheRegistryComesBeforeTheDesktops) {
    WriteEntry("share/applications/speak.desktop", std::string(Claim) + "Exec=one %u\n");
    MakeProgram("roger");
    kept.WriteRegistryString(LocalMachine, TeamSpeakCommandPath, "", "\"/mine\" \"%1\"");
    kept.WriteRegistryString(LocalMachine, RogerWilcoPath, "", "/mine");
    EXPECT_EQ(TeamSpeak(), "\"/mine\" \"%1\"");
    EXPECT_EQ(RogerWilco(), "/mine");
}

TEST_F(InstalledProgramsTest, RogerWilcoIsFoundOnTheProgramPath) {
    MakeProgram("roger.exe");
    EXPECT_EQ(RogerWilco(), folder / "bin/roger.exe");
    Write("bin/roger", "no program");
    EXPECT_EQ(RogerWilco(), folder / "bin/roger.exe");
    MakeProgram("roger");
    EXPECT_EQ(RogerWilco(), folder / "bin/roger");
}

// What the logic makes of the command is started as the entry says.
TEST_F(InstalledProgramsTest, WhatIsLeftWithoutTheUrlIsACommandLineOfTheProgram) {
    WriteEntry("share/applications/speak.desktop", std::string(Claim) + "Exec=one -c \"a b\" %u\n");
    std::string line = TeamSpeak();
    line.erase(line.find("\"%1\""), 4);
    std::vector<std::string> words;
    for (const CommandWord& word : SplitCommandLine(line)) words.push_back(word.Text);
    EXPECT_EQ(words, (std::vector<std::string>{folder / "bin/one", "-c", "a b"}));
}

TEST_F(InstalledProgramsTest, TheUsersChoiceComesFirstThenThatOfTheDesktopThatRuns) {
    for (const std::string name : {"one", "two", "three"})
        WriteEntry("share/applications/" + name + ".desktop", Claim + ("Exec=" + name) + "\n");
    EXPECT_EQ(TeamSpeak(), Program("one"));
    const auto choose = [this](const fs::path& file, const std::string& ids) {
        Write(file, "[Default Applications]\nx-scheme-handler/teamspeak=" + ids + "\n");
    };
    choose("share/applications/mimeapps.list", "two.desktop");
    EXPECT_EQ(TeamSpeak(), Program("two"));
    choose("xdg/mimeapps.list", "three.desktop;two.desktop;");
    EXPECT_EQ(TeamSpeak(), Program("three"));
    choose("config/mimeapps.list", "two.desktop");
    EXPECT_EQ(TeamSpeak(), Program("two"));
    choose("config/other-mimeapps.list", "one.desktop");
    EXPECT_EQ(TeamSpeak(), Program("two"));
    choose("config/plane-mimeapps.list", "gone.desktop;three.desktop");
    EXPECT_EQ(TeamSpeak(), Program("three"));
}

TEST_F(InstalledProgramsTest, WhatTheUserAddedComesFirstAndWhatWasRemovedNotAtAll) {
    WriteEntry("share/applications/one.desktop", std::string(Claim) + "Exec=one\n");
    WriteEntry("share/applications/two.desktop", "Exec=two\n");
    Write("config/mimeapps.list", "[Added Associations]\nx-scheme-handler/teamspeak=two.desktop;\n");
    EXPECT_EQ(TeamSpeak(), Program("two"));
    Write("config/mimeapps.list", "[Removed Associations]\nx-scheme-handler/teamspeak=one.desktop;\n");
    EXPECT_EQ(TeamSpeak(), "");
}

TEST_F(InstalledProgramsTest, TheSystemsCacheIsBelievedAndTheUsersOwnEntriesNeedNone) {
    WriteEntry("share/applications/one.desktop", std::string(Claim) + "Exec=one\n");
    Write("share/applications/mimeinfo.cache", "[MIME Cache]\ntext/plain=one.desktop;\n");
    Write("data/applications/mimeinfo.cache", "[MIME Cache]\n");
    EXPECT_EQ(TeamSpeak(), "");
    Write("share/applications/mimeinfo.cache", "[MIME Cache]\nx-scheme-handler/teamspeak=gone.desktop;one.desktop;\n");
    EXPECT_EQ(TeamSpeak(), Program("one"));
    WriteEntry("data/applications/two.desktop", std::string(Claim) + "Exec=two\n");
    EXPECT_EQ(TeamSpeak(), Program("two"));
}

TEST_F(InstalledProgramsTest, AnEntryInAFolderIsFoundByItsNameWithDashes) {
    WriteEntry("data/applications/a-b/c/one.desktop", std::string(Claim) + "Exec=one\n");
    EXPECT_EQ(TeamSpeak(), "");  // its folder's name has a dash, by which nobody finds it
    WriteEntry("data/applications/a/b/two.desktop", std::string(Claim) + "Exec=two\n");
    EXPECT_EQ(TeamSpeak(), Program("two"));
    Write("config/mimeapps.list", "[Default Applications]\nx-scheme-handler/teamspeak=../../entry.desktop\n");
    EXPECT_EQ(TeamSpeak(), Program("two"));
}

TEST_F(InstalledProgramsTest, AnEntryThatTheUserHidIsPassedOver) {
    WriteEntry("share/applications/one.desktop", std::string(Claim) + "Exec=one\n");
    WriteEntry("share/applications/two.desktop", std::string(Claim) + "Exec=two\n");
    WriteEntry("data/applications/one.desktop", "Hidden=true\n");
    EXPECT_EQ(TeamSpeak(), Program("two"));
}

TEST_F(InstalledProgramsTest, AnEntrysCommandIsReadAsTheDesktopReadsIt) {
    EXPECT_EQ(CommandOf("one"), Program("one"));
    EXPECT_EQ(CommandOf((folder / "bin/one").string() + " %U"), Program("one") + " \"%1\"");
    EXPECT_EQ(CommandOf(R"(one "a \\"b" c)"), "") << "the form has no quote inside quotes";
    EXPECT_EQ(CommandOf(R"(one "a \\$b \\\\c" d%%e)"), Program("one") + R"( "a $b \c" d%e)");
    EXPECT_EQ(CommandOf("one %i %c %d --to=%u"), Program("one") + " --icon picture \"A program\" --to=%1");
    EXPECT_EQ(CommandOf("one \"\" %k"), Program("one") + " \"\" " + (folder / "entry.desktop").string());
    EXPECT_EQ(CommandOf("one %"), Program("one") + " %");
}

TEST_F(InstalledProgramsTest, AnEntryThatStartsNothingHereHasNoCommand) {
    EXPECT_EQ(CommandOf(""), "");
    EXPECT_EQ(CommandOf("gone %u"), "");
    EXPECT_EQ(CommandOf("/gone/one %u"), "");
    EXPECT_EQ(CommandOf("bin/one %u"), "");
    EXPECT_EQ(CommandOf("one \"open"), "");
    EXPECT_EQ(CommandOf("one\nHidden=true"), "");
    EXPECT_EQ(CommandOf("one\nTryExec=gone"), "");
    EXPECT_EQ(CommandOf("one\nTryExec=two"), Program("one"));
    Write("entry.desktop", "[Desktop Entry]\nType=Link\nExec=one\n");
    EXPECT_EQ(ShellCommandOf(folder / "entry.desktop"), "");
    EXPECT_EQ(ShellCommandOf(folder / "nowhere.desktop"), "");
    EXPECT_EQ(ShellCommandOf(folder), "");
}

// Files of others, and of any size and form; what is no file would hold up whoever opens it.
TEST_F(InstalledProgramsTest, FilesWithoutTheFormAreEmpty) {
    Write("config/mimeapps.list",
          std::string(1 << 20, '[') + "\n=\n;\n[]\nx-scheme-handler/teamspeak\n\xff" + std::string(3, '\0'));
    fs::create_directories(folder / "xdg");
    ASSERT_EQ(mkfifo((folder / "xdg/mimeapps.list").c_str(), 0600), 0);
    fs::create_directories(folder / "share/applications/loop");
    fs::create_symlink("..", folder / "share/applications/loop/loop");
    fs::create_directories(folder / "share/applications/mimeapps.list");
    EXPECT_EQ(TeamSpeak(), "");
}

}  // namespace
}  // namespace orvelle::linux
