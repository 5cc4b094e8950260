#include "tests/store/StoreFolder.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace orvelle::store {

namespace {

namespace fs = std::filesystem;

// Runs SQL on a file and gives the first value of the first row.
std::string Query(const fs::path& file, const std::string& sql) {
    sqlite3* connection = nullptr;
    EXPECT_EQ(sqlite3_open_v2(file.c_str(), &connection, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr),
              SQLITE_OK);
    std::string first;
    char* message = nullptr;
    const auto keep = [](void* text, int, char** values, char**) {
        auto& kept = *static_cast<std::string*>(text);
        if (kept.empty() && values[0]) kept = values[0];
        return 0;
    };
    EXPECT_EQ(sqlite3_exec(connection, sql.c_str(), keep, &first, &message), SQLITE_OK) << message << " in " << sql;
    sqlite3_free(message);
    EXPECT_EQ(sqlite3_close(connection), SQLITE_OK);
    return first;
}

}  // namespace

StoreFolder::StoreFolder() {
    std::string name = fs::temp_directory_path() / "orvelle-store-XXXXXX";
    EXPECT_NE(mkdtemp(name.data()), nullptr);
    folder = name;
}

StoreFolder::~StoreFolder() {
    fs::permissions(folder, fs::perms::owner_all);
    fs::remove_all(folder);
}

std::vector<std::string> StoreFolder::Files() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder)) names.push_back(entry.path().filename());
    std::ranges::sort(names);
    return names;
}

SqliteStore StoreFolder::Open(const std::string& name) {
    return {Loop, Path(name), [this](const std::string& sentence) { Sentences.push_back(sentence); }};
}

void StoreFolder::Fill() {
    auto store = Open();
    for (Long row = 1; row <= 100; ++row)
        store.SaveSettingString("OrvelleCP\\Joy2Key\\" + std::to_string(row), "J2KJoy", std::string(50, 'j'));
    store.SaveSettingLong("OrvelleCP", "Left", 7);
}

void StoreFolder::MakeWithoutChecks(const std::string& sql) const {
    std::string make = "PRAGMA journal_mode = WAL; PRAGMA application_id = 0x4F72766C; PRAGMA user_version = 1;";
    for (const char* table : {"setting", "registry", "control"})
        make +=
            std::string("CREATE TABLE ") + table + " (place, name, value, PRIMARY KEY (place, name)) WITHOUT ROWID;";
    Run(make + sql);
}

void StoreFolder::Run(const std::string& sql, const std::string& name) const { Query(Path(name), sql); }
std::string StoreFolder::Text(const std::string& sql) const { return Query(Path(), sql); }

void ExpectInMemory(StoreFolder& folder, const std::string& words, Long left, const std::string& name) {
    const std::vector<std::string> files = folder.Files();
    const std::string before = BytesOf(folder.Path(name));
    folder.Sentences.clear();
    {
        auto store = folder.Open(name);
        EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Left", 1), left);
        store.SaveSettingLong("OrvelleCP", "Left", 2);
        store.HandlerEnded();
        EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Left", 1), 2);
    }
    ASSERT_EQ(folder.Sentences.size(), 1U);
    EXPECT_NE(folder.Sentences[0].find(words), std::string::npos) << folder.Sentences[0];
    EXPECT_NE(folder.Sentences[0].find("changes are lost when the panel ends"), std::string::npos);
    EXPECT_EQ(BytesOf(folder.Path(name)), before);
    EXPECT_EQ(folder.Files(), files);
}

std::string BytesOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void WriteBytes(const fs::path& file, const std::string& bytes) {
    std::ofstream(file, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

}  // namespace orvelle::store
