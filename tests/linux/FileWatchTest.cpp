// A watched file against the real file system.
#include "adapters/linux/FileWatch.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <cstdlib>
#include <fstream>

#include "adapters/linux/PollEventLoop.h"
#include "tests/linux/ServeUntil.h"

namespace orvelle::linux {
namespace {

namespace fs = std::filesystem;

class FileWatchTest : public testing::Test {
protected:
    FileWatchTest() {
        std::string pattern = testing::TempDir() + "orvelle-watch-XXXXXX";
        root = mkdtemp(pattern.data());
        file = root / "data" / "OrvelleCP" / "setup.json";
    }
    ~FileWatchTest() override { fs::remove_all(root); }

    void Watch() {
        watch.emplace(loop, file);
        watch->Changed = [this] {
            told.push_back(fs::exists(file));
            if (told.back()) std::getline(std::ifstream(file), text);
        };
    }
    // Made whole beside it and renamed, as the programs do.
    void Write(const std::string& content) const {
        fs::create_directories(file.parent_path());
        std::ofstream(file.string() + ".new") << content;
        fs::rename(file.string() + ".new", file);
    }
    bool Until(const std::function<bool()>& isSo) { return ServeUntil(loop, isSo); }
    bool Reads(const std::string& content) {
        return Until([&] { return !told.empty() && told.back() && text == content; });
    }
    bool Misses() {
        return Until([&] { return !told.empty() && !told.back(); });
    }

    fs::path root;
    fs::path file;
    PollEventLoop loop;
    std::optional<FileWatch> watch;
    std::vector<bool> told;  // whether it was there
    std::string text;        // that it held when it was told
};

TEST_F(FileWatchTest, AFileComesChangesAndGoes) {
    fs::create_directories(file.parent_path());
    Watch();
    Write("one");
    EXPECT_TRUE(Reads("one"));
    Write("two");
    EXPECT_TRUE(Reads("two"));
    std::ofstream(file) << "in place";
    EXPECT_TRUE(Reads("in place"));
    fs::remove(file);
    EXPECT_TRUE(Misses());
    Write("again");
    EXPECT_TRUE(Reads("again"));
}

TEST_F(FileWatchTest, ItsFoldersMayComeLater) {
    Watch();
    fs::create_directory(root / "data");
    fs::create_directory(root / "data" / "other");
    EXPECT_TRUE(Until([] { return true; }));
    Write("one");
    EXPECT_TRUE(Reads("one"));
    Write("two");
    EXPECT_TRUE(Reads("two"));
}

TEST_F(FileWatchTest, ItsFoldersMayGoAndComeAgain) {
    Write("one");
    Watch();
    fs::remove_all(root / "data");
    EXPECT_TRUE(Misses());
    Write("two");
    EXPECT_TRUE(Reads("two"));
    // Away and back under its own name, with the same file in it.
    fs::rename(file.parent_path(), root / "elsewhere");
    EXPECT_TRUE(Misses());
    fs::rename(root / "elsewhere", file.parent_path());
    EXPECT_TRUE(Reads("two"));
    Write("three");
    EXPECT_TRUE(Reads("three"));
}

TEST_F(FileWatchTest, ManyTimesInARow) {
    Watch();
    for (int round = 0; round < 200; ++round) {
        const std::string content = std::to_string(round);
        if (round % 3 == 0) fs::remove_all(root / "data");
        Write(content);
        ASSERT_TRUE(Reads(content)) << "in round " << round;
    }
}

TEST_F(FileWatchTest, WhatIsThereAtTheBeginningAndOtherFilesAreNotTold) {
    Write("one");
    Watch();
    std::ofstream(file.parent_path() / "settings") << "other";
    fs::remove(file.parent_path() / "settings");
    Write("two");
    EXPECT_TRUE(Reads("two"));
    EXPECT_EQ(told.size(), 1);
}

TEST_F(FileWatchTest, WithoutAnyWatchLeftItIsLookedAtEverySecond) {
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &before), 0);
    const rlimit none{0, before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &none), 0);
    Watch();
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &before), 0);
    Write("one");
    EXPECT_TRUE(Reads("one"));
    fs::remove(file);
    EXPECT_TRUE(Misses());
}

}  // namespace
}  // namespace orvelle::linux
