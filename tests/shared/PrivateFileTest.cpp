#include "adapters/shared/PrivateFile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>
#include <iterator>

#include "tests/shared/OwnFolder.h"

namespace orvelle {
namespace {

namespace fs = std::filesystem;

class PrivateFileTest : public testing::Test {
protected:
    std::size_t FilesInFolder() const {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder.Path), {}));
    }

    OwnFolder folder;
    const fs::path file = folder.Path / "kept";
};

TEST_F(PrivateFileTest, IsKeptForItsUserAlone) {
    const mode_t before = umask(0);
    EXPECT_EQ(WritePrivateFile(file, "secret"), "");
    umask(before);
    struct stat state {};
    ASSERT_EQ(stat(file.c_str(), &state), 0);
    EXPECT_EQ(state.st_mode & 07777U, 0600U);
    EXPECT_EQ(ReadPrivateFile(file, 100).Text, "secret");
}

TEST_F(PrivateFileTest, IsReplacedWholeAndLeavesNothingBeside) {
    std::ofstream(file) << std::string(5000, 'x');
    fs::permissions(file, fs::perms::all);
    const std::string text = std::string(9000, 'y') + '\0' + "end";
    EXPECT_EQ(WritePrivateFile(file, text), "");
    EXPECT_EQ(ReadPrivateFile(file, 10000).Text, text);
    EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(FilesInFolder(), 1U);
}

TEST_F(PrivateFileTest, MakesItsFolder) {
    EXPECT_EQ(WritePrivateFile(folder.Path / "a" / "b" / "kept", "x"), "");
    EXPECT_EQ(ReadPrivateFile(folder.Path / "a" / "b" / "kept", 100).Text, "x");
}

TEST_F(PrivateFileTest, ThatIsMissingIsNoError) {
    for (const fs::path& missing : {file, folder.Path / "no" / "folder"}) {
        const PrivateText read = ReadPrivateFile(missing, 100);
        EXPECT_FALSE(read.Text);
        EXPECT_EQ(read.Reason, "");
        EXPECT_EQ(RemovePrivateFile(missing), "");
    }
}

TEST_F(PrivateFileTest, IsBounded) {
    WritePrivateFile(file, std::string(100, 'x'));
    EXPECT_TRUE(ReadPrivateFile(file, 100).Text);
    EXPECT_EQ(ReadPrivateFile(file, 99).Reason, "it is longer than 99 bytes");
}

TEST_F(PrivateFileTest, IsAPlainFile) {
    ASSERT_EQ(mkfifo((folder.Path / "pipe").c_str(), 0600), 0);
    fs::create_directory(folder.Path / "folder");
    WritePrivateFile(file, "x");
    fs::create_symlink(file, folder.Path / "link");
    fs::create_symlink("/dev/zero", folder.Path / "device");
    for (const char* name : {"pipe", "folder", "link", "device"}) {
        const PrivateText read = ReadPrivateFile(folder.Path / name, 100);
        EXPECT_FALSE(read.Text) << name;
        EXPECT_EQ(read.Reason, "it is no plain file") << name;
    }
}

TEST_F(PrivateFileTest, ThatCannotBeWrittenStaysAsItWas) {
    fs::create_directory(file);
    EXPECT_NE(WritePrivateFile(file, "x"), "");
    EXPECT_TRUE(fs::is_directory(file));
    EXPECT_EQ(FilesInFolder(), 1U);
    std::ofstream(folder.Path / "plain") << "x";
    EXPECT_NE(WritePrivateFile(folder.Path / "plain" / "kept", "x"), "");
    EXPECT_NE(WritePrivateFile("/proc/self/kept", "x"), "");
    EXPECT_NE(RemovePrivateFile(file), "");
}

TEST_F(PrivateFileTest, IsRemoved) {
    WritePrivateFile(file, "x");
    EXPECT_EQ(RemovePrivateFile(file), "");
    EXPECT_EQ(FilesInFolder(), 0U);
}

}  // namespace
}  // namespace orvelle
