// Another program that writes to a store's file, and holds its lock for as long as this stands.
#pragma once

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <filesystem>

namespace orvelle::store {

class LockedStore {
public:
    explicit LockedStore(const std::filesystem::path& file) {
        EXPECT_EQ(sqlite3_open(file.c_str(), &connection), SQLITE_OK);
        EXPECT_EQ(sqlite3_exec(connection, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
    }
    LockedStore(const LockedStore&) = delete;
    LockedStore& operator=(const LockedStore&) = delete;
    ~LockedStore() { sqlite3_close(connection); }

private:
    sqlite3* connection = nullptr;
};

}  // namespace orvelle::store
