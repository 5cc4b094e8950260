// The directories of the folder "directories" and those of docs/directory.md are taken or refused as is said of them.
// agrees-with-schema holds the same ones against the schema.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <vector>

#include "simulators/directory/DirectoryReading.h"

namespace orvelle::directory {
namespace {

std::string TextOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    EXPECT_TRUE(stream) << file;
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

std::vector<std::filesystem::path> FilesOf(const std::string& folder) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(std::filesystem::path(DIRECTORY_FILES) / folder))
        files.push_back(entry.path());
    EXPECT_FALSE(files.empty()) << folder;
    return files;
}

TEST(DirectoryFiles, GoodOnesHaveNoMistake) {
    for (const auto& file : FilesOf("good")) {
        const ReadText read = ReadDirectory(TextOf(file));
        EXPECT_TRUE(read.Content) << file;
        EXPECT_EQ(read.FaultCount, 0U) << file << ": " << (read.Faults.empty() ? "" : read.Faults[0].Sentence);
    }
}

TEST(DirectoryFiles, OthersHaveOne) {
    for (const char* folder : {"mistaken", "beyond-the-schema"})
        for (const auto& file : FilesOf(folder)) EXPECT_EQ(ReadDirectory(TextOf(file)).FaultCount, 1U) << file;
}

// The fenced blocks of the document by what stands behind the fence.
std::vector<std::string> Blocks(const std::string& kind) {
    std::istringstream document(TextOf(DIRECTORY_DOCUMENT));
    std::vector<std::string> blocks;
    bool isInside = false;
    for (std::string line; std::getline(document, line);) {
        if (line.starts_with("```")) {
            isInside = line == "```" + kind;
            if (isInside) blocks.emplace_back();
        } else if (isInside) {
            blocks.back() += line + "\n";
        }
    }
    return blocks;
}

TEST(DirectoryDocument, ItsExamplesAreDirectories) {
    const std::vector<std::string> examples = Blocks("json directory");
    ASSERT_GE(examples.size(), 2U);
    EXPECT_EQ(std::ranges::count(examples[0], '\n'), 3) << "the smallest one has three lines";
    for (const std::string& example : examples) {
        const ReadText read = ReadDirectory(example);
        EXPECT_TRUE(read.Content) << example;
        EXPECT_EQ(read.FaultCount, 0U) << example;
        EXPECT_TRUE(FindOddities(read).empty()) << example;
    }
}

TEST(DirectoryDocument, ItsBlocksAreOfKnownKinds) {
    std::istringstream document(TextOf(DIRECTORY_DOCUMENT));
    const std::vector<std::string> kinds{"```", "```json directory", "```json mistaken", "```check"};
    for (std::string line; std::getline(document, line);) {
        const bool isKnown = !line.starts_with("```") || std::ranges::find(kinds, line) != kinds.end();
        EXPECT_TRUE(isKnown) << line;
    }
    EXPECT_EQ(Blocks("json mistaken").size(), Blocks("check").size());
}

}  // namespace
}  // namespace orvelle::directory
