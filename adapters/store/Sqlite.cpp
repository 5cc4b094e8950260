#include "adapters/store/Sqlite.h"

#include <algorithm>
#include <limits>

namespace orvelle::store {

namespace {

constexpr Long OpeningMilliseconds = 1000;

bool IsPlainText(const std::string& bytes) {
    return std::ranges::all_of(bytes, [](unsigned char byte) { return byte != 0 && byte < 0x80; });
}

}  // namespace

Connection::Connection(const std::string& name, int flags) {
    sqlite3* opened = nullptr;
    const int code = sqlite3_open_v2(name.c_str(), &opened, flags, nullptr);
    handle.reset(opened);
    if (code != SQLITE_OK) throw SqliteError(code, opened ? sqlite3_errmsg(opened) : sqlite3_errstr(code));
    WaitForLock(OpeningMilliseconds);
}

void Connection::Run(const char* sql) const { Statement(*this, sql).Finish(); }

void Connection::RollBack() const {
    if (sqlite3_get_autocommit(handle.get()) == 0) Run("ROLLBACK");
}

Long Connection::Number(const char* sql) const {
    Statement statement(*this, sql);
    return statement.Step() ? statement.Number(0) : 0;
}

std::string Connection::Text(const char* sql) const {
    Statement statement(*this, sql);
    return statement.Step() ? statement.Bytes(0) : "";
}

void Connection::KeepLogAtClose(bool keep) const {
    sqlite3_db_config(handle.get(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, keep ? 1 : 0, nullptr);
}

Statement::Statement(const Connection& owner, const std::string& sql) : connection(owner.Handle()) {
    sqlite3_stmt* prepared = nullptr;
    const int code = sqlite3_prepare_v2(connection, sql.c_str(), static_cast<int>(sql.size()), &prepared, nullptr);
    handle.reset(prepared);
    Check(code);
}

Statement& Statement::Bind(int parameter, const std::string& bytes) {
    if (IsPlainText(bytes))
        Check(sqlite3_bind_text64(handle.get(), parameter, bytes.data(), bytes.size(), SQLITE_STATIC, SQLITE_UTF8));
    else
        Check(sqlite3_bind_blob64(handle.get(), parameter, bytes.data(), bytes.size(), SQLITE_STATIC));
    return *this;
}

Statement& Statement::Bind(int parameter, const StoredValue& value) {
    if (const auto* number = std::get_if<Long>(&value))
        Check(sqlite3_bind_int(handle.get(), parameter, *number));
    else if (const auto* bytes = std::get_if<std::string>(&value))
        Bind(parameter, *bytes);
    else
        Check(sqlite3_bind_null(handle.get(), parameter));
    return *this;
}

Statement& Statement::BindWide(int parameter, std::int64_t number) {
    Check(sqlite3_bind_int64(handle.get(), parameter, number));
    return *this;
}

bool Statement::Step() {
    const int code = sqlite3_step(handle.get());
    if (code != SQLITE_ROW && code != SQLITE_DONE) Fail(code);
    return code == SQLITE_ROW;
}

void Statement::Finish() {
    while (Step()) {
    }
    Check(sqlite3_reset(handle.get()));
}

std::string Statement::Bytes(int column) const {
    const void* bytes = sqlite3_column_blob(handle.get(), column);
    const int size = sqlite3_column_bytes(handle.get(), column);
    return bytes ? std::string(static_cast<const char*>(bytes), static_cast<std::size_t>(size)) : "";
}

bool Statement::IsBytes(int column) const {
    const int type = sqlite3_column_type(handle.get(), column);
    return type == SQLITE_TEXT || type == SQLITE_BLOB;
}

bool Statement::IsAsBound(int column) const {
    const int type = sqlite3_column_type(handle.get(), column);
    if (type == SQLITE_TEXT || type == SQLITE_BLOB) return IsPlainText(Bytes(column)) == (type == SQLITE_TEXT);
    return type != SQLITE_FLOAT;
}

StoredValue Statement::Value(int column) const {
    switch (sqlite3_column_type(handle.get(), column)) {
        case SQLITE_TEXT:
        case SQLITE_BLOB:
            return Bytes(column);
        case SQLITE_INTEGER: {
            const sqlite3_int64 number = sqlite3_column_int64(handle.get(), column);
            if (number < std::numeric_limits<Long>::min() || number > std::numeric_limits<Long>::max()) break;
            return static_cast<Long>(number);
        }
        default:
            break;
    }
    return UnknownValue{};
}

// The statement is made ready again, so that a later run finds it as a first one does.
void Statement::Fail(int code) const {
    const std::string message = sqlite3_errmsg(connection);
    sqlite3_reset(handle.get());
    throw SqliteError(code, message);
}

void Statement::Check(int code) const {
    if (code != SQLITE_OK) Fail(code);
}

}  // namespace orvelle::store
