#include "adapters/shared/WholeFile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <thread>

namespace orvelle {
namespace {

namespace fs = std::filesystem;

class WholeFileTest : public testing::Test {
protected:
    ~WholeFileTest() override { fs::remove_all(folder); }

    static fs::path NewFolder() {
        std::string name = testing::TempDir() + "whole-XXXXXX";
        return mkdtemp(name.data());
    }

    static std::string Text(const fs::path& path) {
        std::ifstream stream(path);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    static int Mode(const fs::path& path) { return static_cast<int>(fs::status(path).permissions()); }

    const fs::path folder = NewFolder();
    const fs::path file = folder / "a" / "b" / "entry";
};

TEST_F(WholeFileTest, IsTheUsersAloneWhateverTheUmask) {
    for (const mode_t mask : {0000, 0022, 0077, 0277}) {
        fs::remove_all(folder / "a");
        const mode_t before = umask(mask & 0077);
        umask(mask);
        const std::error_code error = WriteWholeFile(file, "text");
        umask(before);
        EXPECT_FALSE(error) << error.message();
        EXPECT_EQ(Text(file), "text");
        EXPECT_EQ(Mode(file), 0600);
        EXPECT_EQ(Mode(folder / "a") & ~mask, 0700 & ~mask);
        EXPECT_EQ(Mode(folder / "a" / "b") & 0077, 0);
    }
}

TEST_F(WholeFileTest, ReplacesTheOldOneAndLeavesNothingBeside) {
    EXPECT_FALSE(WriteWholeFile(file, "old"));
    EXPECT_FALSE(WriteWholeFile(file, "new"));
    EXPECT_EQ(Text(file), "new");
    EXPECT_EQ(std::distance(fs::directory_iterator(file.parent_path()), fs::directory_iterator()), 1);
}

TEST_F(WholeFileTest, WritesThroughNoLinkThatLiesInTheWay) {
    EXPECT_FALSE(WriteWholeFile(file, "old"));
    fs::create_symlink(folder / "elsewhere", file.string() + ".new");
    EXPECT_FALSE(WriteWholeFile(file, "new"));
    EXPECT_EQ(Text(file), "new");
    EXPECT_FALSE(fs::exists(folder / "elsewhere"));
}

TEST_F(WholeFileTest, IsWholeWhicheverOfSeveralWroteItLast) {
    const auto writeOften = [this](char letter) {
        for (int time = 0; time < 50; ++time) EXPECT_FALSE(WriteWholeFile(file, std::string(20'000, letter)));
    };
    std::thread other(writeOften, 'a');
    writeOften('b');
    other.join();
    const std::string text = Text(file);
    EXPECT_EQ(text.size(), 20'000U);
    EXPECT_EQ(text.find_first_not_of(text.front()), std::string::npos);
    EXPECT_EQ(std::distance(fs::directory_iterator(file.parent_path()), fs::directory_iterator()), 1);
}

TEST_F(WholeFileTest, IsPutInPlaceOfAnother) {
    EXPECT_FALSE(WriteWholeFile(file, "old"));
    const fs::path made = fs::path(file) += ".made";
    std::ofstream(made) << "new";
    EXPECT_FALSE(RenameForGood(made, file));
    EXPECT_EQ(Text(file), "new");
    EXPECT_EQ(RenameForGood(made, file), std::errc::no_such_file_or_directory);
    EXPECT_EQ(Text(file), "new");
}

TEST_F(WholeFileTest, LiesInNoFolderWhoseLinkLeadsNowhere) {
    fs::create_directory_symlink(folder / "nowhere", folder / "a");
    EXPECT_EQ(WriteWholeFile(file, "text"), std::errc::no_such_file_or_directory);
    EXPECT_FALSE(fs::exists(folder / "nowhere"));
}

TEST_F(WholeFileTest, TellsWhatFailed) {
    std::ofstream(folder / "a") << "in the way";
    EXPECT_EQ(WriteWholeFile(file, "text"), std::errc::not_a_directory);
    EXPECT_EQ(WriteWholeFile("/proc/none/entry", "text"), std::errc::no_such_file_or_directory);
}

}  // namespace
}  // namespace orvelle
