#include "adapters/store/StoreReader.h"

#include <cstdint>
#include <utility>

#include "adapters/store/DiskFile.h"
#include "adapters/store/StoreFormat.h"
#include "adapters/store/StoreValues.h"

namespace orvelle::store {

namespace {

namespace fs = std::filesystem;

// Where SQLite keeps the two numbers in a file's header, most significant byte first
constexpr std::size_t VersionOffset = 60;
constexpr std::size_t ApplicationIdOffset = 68;
constexpr std::size_t HeaderSize = 100;

// A newer file is known by its header alone: even a look by SQLite would touch what lies beside it.
bool IsNewerByHeader(const fs::path& path) {
    const std::string header = StartOf(path, HeaderSize);
    if (header.size() < HeaderSize) return false;
    const auto number = [&](std::size_t offset) {
        std::uint32_t value = 0;
        for (std::size_t index = offset; index < offset + 4; ++index)
            value = value << 8 | static_cast<unsigned char>(header[index]);
        return static_cast<Long>(value);
    };
    return number(ApplicationIdOffset) == ApplicationId && number(VersionOffset) > FormatVersion;
}

void TakeOver(Connection& file, Long version, FoundStore& found) try {
    file.Run("PRAGMA journal_mode = WAL");
    file.Run("PRAGMA synchronous = FULL");
    if (version == VersionWithoutChecks && !found.IsFaulty()) {
        found.State = FirstState(found.Values);
        Convert(file, found.Values, found.State);
    }
    file.KeepLogAtClose(false);
    found.Open = std::move(file);
} catch (const SqliteError&) {
    found.Verdict = StoreVerdict::ReadOnly;
}

FoundStore ReadThrough(Connection file, StoreAccess access) {
    file.KeepLogAtClose(true);
    if (file.Number("PRAGMA application_id") != ApplicationId) return {};
    const Long version = file.Number("PRAGMA user_version");
    if (version > FormatVersion) return {.Verdict = StoreVerdict::Newer};
    if (version < VersionWithoutChecks || file.Text("PRAGMA quick_check(1)") != "ok" || !HasOurTables(file, version))
        return {};
    FoundStore found{.Verdict = file.ReadOnly() ? StoreVerdict::ReadOnly : StoreVerdict::Good};
    ReadStoreValues(file, version, found);
    if (found.Verdict == StoreVerdict::Good && access == StoreAccess::Write) TakeOver(file, version, found);
    return found;
}

bool MeansDamage(const SqliteError& error) {
    switch (error.Code) {
        case SQLITE_NOTADB:
        case SQLITE_CORRUPT:
        case SQLITE_FORMAT:
        case SQLITE_ERROR:
            return true;
        default:
            return false;
    }
}

bool HasLog(const fs::path& path) {
    const fs::path log = fs::path(path) += "-wal";
    return fs::exists(log) && fs::file_size(log) > 0;
}

// Without a log that would complete it, a file of broken pages has lost its end. Pages are multiples of 512 bytes.
bool IsCutOff(const fs::path& path) { return fs::is_regular_file(path) && fs::file_size(path) % 512 != 0; }

FoundStore ReadImmutable(const fs::path& path) {
    return ReadThrough(Connection(ImmutableName(path), SQLITE_OPEN_READONLY | SQLITE_OPEN_URI), StoreAccess::Look);
}

// Where the memory that connections share can't be made, as on a full disk, one that locks out all others needs none.
FoundStore ReadAlone(const fs::path& path, StoreAccess access) {
    Connection file(FileName(path), SQLITE_OPEN_READWRITE);
    file.Run("PRAGMA locking_mode = EXCLUSIVE");
    return ReadThrough(std::move(file), access);
}

// Somebody who holds a lock may be in the middle of writing, so only what is found whole counts.
FoundStore ReadBehindLock(const fs::path& path, const SqliteError& locked) {
    FoundStore found = ReadImmutable(path);
    if (found.Verdict != StoreVerdict::ReadOnly || found.IsFaulty()) throw SqliteError(locked);
    return found;
}

FoundStore ReadAnyWay(const fs::path& path, StoreAccess access) {
    try {
        Connection file(FileName(path), SQLITE_OPEN_READWRITE);
        if (!file.ReadOnly() || HasLog(path)) return ReadThrough(std::move(file), access);
    } catch (const SqliteError& error) {
        if (error.Code == SQLITE_IOERR || error.Code == SQLITE_FULL) return ReadAlone(path, access);
        if (HasLog(path)) throw;
        if (error.Code == SQLITE_BUSY) return ReadBehindLock(path, error);
        if (error.Code != SQLITE_CANTOPEN && error.Code != SQLITE_READONLY) throw;
    }
    return ReadImmutable(path);
}

}  // namespace

FoundStore ReadStoreFile(const fs::path& path, StoreAccess access) {
    // SQLite would take an empty file for a new one, and forget the log.
    if (!fs::exists(path) || (fs::is_regular_file(path) && fs::is_empty(path))) return {};
    if (IsNewerByHeader(path)) return {.Verdict = StoreVerdict::Newer};
    if (!HasLog(path) && IsCutOff(path)) return {};
    try {
        return ReadAnyWay(path, access);
    } catch (const SqliteError& error) {
        if (!MeansDamage(error)) throw;
        return {};
    }
}

FoundStore ReadStoreCopy(const fs::path& path) try {
    if (KindOf(path) != PathKind::File || fs::is_empty(path) || IsCutOff(path)) return {};
    return ReadImmutable(path);
} catch (const std::exception&) {
    return {};
}

}  // namespace orvelle::store
