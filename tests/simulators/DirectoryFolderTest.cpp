// Directories as files of a real folder, which change while they are watched.
#include "simulators/directory/DirectoryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>

#include "adapters/linux/PollEventLoop.h"
#include "tests/linux/ServeUntil.h"
#include "tests/shared/OwnFolder.h"
#include "tests/simulators/PlacedDirectories.h"

namespace orvelle::directory {
namespace {

namespace fs = std::filesystem;

class DirectoryFolderTest : public testing::Test {
protected:
    DirectoryFolderTest() { fs::create_directory(path); }

    void Write(const std::string& name, const std::string& text) { std::ofstream(path / name) << text; }
    bool Until(const std::function<bool()>& isSo) { return linux::ServeUntil(loop, isSo); }
    bool Shows(const std::string& names) {
        return Until([&] { return NamesIn(folder->Directories()) == names; });
    }
    void Begin() { folder = std::make_unique<DirectoryFolder>(loop, path); }
    void BeginWith(const std::string& names) {
        Begin();
        ASSERT_TRUE(Shows(names));
    }
    // Of the only one there.
    const DirectoryTold& Told() const { return folder->Directories().at(0).Told; }

    OwnFolder own;
    const fs::path path = own.Path / "directory.d";
    linux::PollEventLoop loop;
    std::unique_ptr<DirectoryFolder> folder;
};

TEST_F(DirectoryFolderTest, FilesAreReadAtTheStartInTheOrderOfTheirNames) {
    Write("b.json", DirectoryNamed("B"));
    Write("a.json", DirectoryNamed("A"));
    Write(".c.json", DirectoryNamed("hidden"));
    Write("d.json.bak", DirectoryNamed("of an editor"));
    BeginWith("A|B");
    EXPECT_EQ(Told().Source, "a.json");
    EXPECT_TRUE(folder->Directories()[0].ReadAt);
}

TEST_F(DirectoryFolderTest, OnesThatComeChangeAndGoAreTakenUp) {
    Begin();
    Write("b.json", DirectoryNamed("B"));
    EXPECT_TRUE(Shows("B"));
    Write("new", DirectoryNamed("A"));
    fs::rename(path / "new", path / "a.json");
    EXPECT_TRUE(Shows("A|B"));
    Write("a.json", DirectoryNamed("Z"));
    EXPECT_TRUE(Shows("Z|B"));
    fs::remove(path / "a.json");
    EXPECT_TRUE(Shows("B"));
    fs::rename(path / "b.json", path / "b");
    EXPECT_TRUE(Shows(""));
    EXPECT_TRUE(folder->Directories().empty());
}

TEST_F(DirectoryFolderTest, TheFolderMayComeLaterAndGo) {
    fs::remove(path);
    Begin();
    EXPECT_TRUE(folder->Directories().empty());
    fs::create_directory(own.Path / "other");
    std::ofstream(own.Path / "other" / "a.json") << DirectoryNamed("A");
    fs::rename(own.Path / "other", path);
    EXPECT_TRUE(Shows("A"));
    fs::remove_all(path);
    EXPECT_TRUE(Shows(""));
}

TEST_F(DirectoryFolderTest, OneThatIsHalfWrittenCountsWhenItsWriterClosesIt) {
    Write("a.json", DirectoryNamed("Old"));
    BeginWith("Old");
    const std::string text = DirectoryNamed("New");
    std::ofstream writer(path / "a.json");
    writer << text.substr(0, 20) << std::flush;
    Write("b.json", DirectoryNamed("B"));
    ASSERT_TRUE(Shows("Old|B"));
    writer << text.substr(20) << std::flush;
    writer.close();
    EXPECT_TRUE(Shows("New|B"));
    EXPECT_EQ(Told().Trouble, "");
}

TEST_F(DirectoryFolderTest, ADamagedNewVersionLeavesTheLastGoodOneAndIsTold) {
    Write("a.json", DirectoryNamed("A"));
    BeginWith("A");
    Write("a.json", "{\"servers\": {},\n  \"format\": \"orvelle-directory/2\"}");
    ASSERT_TRUE(Until([this] { return !Told().Trouble.empty(); }));
    EXPECT_EQ(NamesIn(folder->Directories()), "A");
    EXPECT_TRUE(Told().Trouble.starts_with("It is no directory: line 2, format: ")) << Told().Trouble;
    EXPECT_TRUE(Told().IsCopy);
    ASSERT_FALSE(Told().Faults.empty());
    EXPECT_EQ(Told().Faults[0].Line, 2U);
    const auto before = folder->Directories()[0].Content;
    Write("a.json", DirectoryNamed("A"));
    ASSERT_TRUE(Until([this] { return Told().Trouble.empty(); }));
    EXPECT_TRUE(Told().Faults.empty());
    EXPECT_FALSE(Told().IsCopy);
    EXPECT_EQ(folder->Directories()[0].Content, before) << "it is what it was";
}

TEST_F(DirectoryFolderTest, WhatIsNoFileIsTold) {
    ASSERT_EQ(mkfifo((path / "a-fifo.json").c_str(), 0600), 0);
    fs::create_directory(path / "b-folder.json");
    Write("c-long.json", "");
    fs::resize_file(path / "c-long.json", 100'000'000);
    fs::create_symlink("nowhere", path / "d-link.json");
    fs::create_symlink("e-round.json", path / "e-round.json");
    std::ofstream(own.Path / "elsewhere") << DirectoryNamed("F");
    fs::create_symlink(own.Path / "elsewhere", path / "f-link.json");
    Write("g.json", "");
    BeginWith("F");
    const auto& found = folder->Directories();
    ASSERT_EQ(found.size(), 7U);
    ASSERT_TRUE(Until([&] { return !found[6].Told.Trouble.empty(); }));
    EXPECT_EQ(found[0].Told.Trouble, "It can't be read: it is no plain file.");
    EXPECT_EQ(found[1].Told.Trouble, "It can't be read: it is no plain file.");
    EXPECT_EQ(found[2].Told.Trouble, "It can't be read: it is longer than 16 MiB.");
    EXPECT_EQ(found[3].Told.Trouble, "It is a link that leads nowhere: No such file or directory.");
    EXPECT_EQ(found[4].Told.Trouble, "It is a link that leads nowhere: Too many levels of symbolic links.");
    EXPECT_TRUE(found[6].Told.Trouble.starts_with("It is no directory: line 1")) << found[6].Told.Trouble;
    EXPECT_FALSE(found[6].ReadAt);
}

TEST_F(DirectoryFolderTest, OneThatMayNotBeReadIsTold) {
    Write("a.json", DirectoryNamed("A"));
    BeginWith("A");
    // Also root can't open what is no plain file any more.
    fs::remove(path / "a.json");
    fs::create_directory(path / "a.json");
    ASSERT_TRUE(Until([this] { return !Told().Trouble.empty(); }));
    EXPECT_EQ(NamesIn(folder->Directories()), "A");
    if (geteuid() == 0) return;
    Write("b.json", DirectoryNamed("B"));
    ASSERT_TRUE(Shows("A|B"));
    fs::permissions(path / "b.json", fs::perms::none);
    ASSERT_TRUE(Until([this] { return folder->Directories().at(1).Told.IsCopy; }));
    EXPECT_EQ(folder->Directories()[1].Told.Trouble, "It can't be read: Permission denied.");
}

TEST_F(DirectoryFolderTest, MoreThanAHundredAreLeftOut) {
    for (int number = 100; number <= 200; ++number)
        Write(std::to_string(number) + ".json", DirectoryNamed(std::to_string(number)));
    Begin();
    ASSERT_EQ(folder->Directories().size(), 101U);
    EXPECT_EQ(folder->Directories()[100].Told.Source, path.string());
    EXPECT_EQ(folder->Directories()[100].Told.Trouble, "Only the first 100 of 101 files are taken.");
    fs::remove(path / "100.json");
    ASSERT_TRUE(Until([this] { return folder->Directories().size() == 100; }));
    const auto& last = folder->Directories()[99];
    ASSERT_TRUE(Until([&] { return last.Content && last.Content->Name == "200"; }));
}

}  // namespace
}  // namespace orvelle::directory
