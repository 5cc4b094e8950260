// A thin hold on SQLite for the store's file: a connection and a prepared statement that close themselves. Every call
// that fails throws SqliteError, which the file's own code catches; it never leaves this folder.
#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>

#include "adapters/store/StoredValue.h"

namespace orvelle::store {

class SqliteError : public std::runtime_error {
public:
    SqliteError(int resultCode, const std::string& message) : runtime_error(message), Code(resultCode & 0xFF) {}
    const int Code;  // without the extended part
};

class Connection {
public:
    // Opens a file, or a URI if the flags say so. It waits a second for a lock that somebody else holds.
    Connection(const std::string& name, int flags);

    sqlite3* Handle() const { return handle.get(); }
    void Run(const char* sql) const;
    void RollBack() const;  // after an error inside a transaction, of which some have rolled it back already
    Long Number(const char* sql) const;       // the one number that a query gives
    std::string Text(const char* sql) const;  // the first text that a query gives
    bool ReadOnly() const { return sqlite3_db_readonly(handle.get(), "main") == 1; }
    // From now on it waits so long for a lock, 0 for not at all.
    void WaitForLock(Long milliseconds) const { sqlite3_busy_timeout(handle.get(), milliseconds); }
    // A connection that only looks leaves the write-ahead log as it is when it closes.
    void KeepLogAtClose(bool keep) const;

private:
    struct Close {
        void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
    };
    std::unique_ptr<sqlite3, Close> handle;
};

class Statement {
public:
    Statement(const Connection& owner, const std::string& sql);

    // Parameters count from 1. Plain ASCII is bound as text, so that the file can be read by eye; other bytes as a
    // blob. The bytes must stay until the statement has finished.
    Statement& Bind(int parameter, const std::string& bytes);
    Statement& Bind(int parameter, const StoredValue& value);
    Statement& BindWide(int parameter, std::int64_t number);

    bool Step();    // True while there is a row
    void Finish();  // runs to the end, and makes ready for the next run

    std::string Bytes(int column) const;
    StoredValue Value(int column) const;
    std::int64_t Wide(int column) const { return sqlite3_column_int64(handle.get(), column); }
    // The column holds bytes; or what it holds is in the form in which Bind would have put it there.
    bool IsBytes(int column) const;
    bool IsAsBound(int column) const;
    Long Number(int column) const { return sqlite3_column_int(handle.get(), column); }

private:
    [[noreturn]] void Fail(int code) const;
    void Check(int code) const;

    struct Finalize {
        void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
    };
    sqlite3* connection;
    std::unique_ptr<sqlite3_stmt, Finalize> handle;
};

}  // namespace orvelle::store
