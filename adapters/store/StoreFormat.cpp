#include "adapters/store/StoreFormat.h"

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <fstream>
#include <utility>

namespace orvelle::store {

namespace {

namespace fs = std::filesystem;

constexpr Long ApplicationId = 0x4F72766C;  // "Orvl"
constexpr Long FormatVersion = 1;

// Where SQLite keeps the two numbers in a file's header, most significant byte first
constexpr std::size_t VersionOffset = 60;
constexpr std::size_t ApplicationIdOffset = 68;
constexpr std::size_t HeaderSize = 100;

std::string CreateStatement(const std::string& table) {
    return "CREATE TABLE " + table + " (place, name, value, PRIMARY KEY (place, name)) WITHOUT ROWID";
}

std::string FileName(const fs::path& path) {
    const std::u8string name = path.u8string();
    return {name.begin(), name.end()};
}

// The file as it stands, without its log and without a lock: all that can be had where nothing can be written.
std::string ImmutableName(const fs::path& path) {
    static constexpr char Digits[] = "0123456789ABCDEF";
    std::string name = "file:";
    for (const char character : FileName(fs::absolute(path))) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte < 0x80 && (std::isalnum(byte) != 0 || byte == '/' || byte == '.' || byte == '-' || byte == '_')) {
            name += character;
        } else {
            name += '%';
            name += Digits[byte >> 4];
            name += Digits[byte & 15];
        }
    }
    return name + "?immutable=1";
}

// A newer file is known by its header alone: even a look by SQLite would touch what lies beside it.
bool IsNewerByHeader(const fs::path& path) {
    std::array<unsigned char, HeaderSize> header{};
    std::ifstream file(path, std::ios::binary);
    file.read(reinterpret_cast<char*>(header.data()), header.size());
    if (!file) return false;
    const auto number = [&](std::size_t offset) {
        std::uint32_t value = 0;
        for (std::size_t index = offset; index < offset + 4; ++index) value = value << 8 | header[index];
        return static_cast<Long>(value);
    };
    return number(ApplicationIdOffset) == ApplicationId && number(VersionOffset) > FormatVersion;
}

bool HasOurTables(const Connection& file) {
    return std::ranges::all_of(StoreTableNames, [&](const std::string& table) {
        const std::string query = "SELECT sql FROM sqlite_master WHERE name = '" + table + "'";
        return file.Text(query.c_str()) == CreateStatement(table);
    });
}

FoundStore ReadThrough(Connection file) {
    file.KeepLogAtClose(true);
    if (file.Number("PRAGMA application_id") != ApplicationId) return {};
    const Long version = file.Number("PRAGMA user_version");
    if (version > FormatVersion) return {.Verdict = StoreVerdict::Newer};
    if (version != FormatVersion || file.Text("PRAGMA quick_check(1)") != "ok" || !HasOurTables(file)) return {};

    FoundStore found;
    for (std::size_t table = 0; table < StoredTableCount; ++table) {
        Statement rows(file, std::string("SELECT place, name, value FROM ") + StoreTableNames[table]);
        // They come in the order of the key, so each belongs to the place of the one before or behind all others.
        StoredPlaces& places = found.Values[table];
        auto names = places.end();
        while (rows.Step()) {
            std::string place = rows.Bytes(0);
            if (names == places.end() || names->first != place)
                names = places.try_emplace(places.end(), std::move(place));
            names->second.insert_or_assign(names->second.end(), rows.Bytes(1), rows.Value(2));
        }
    }
    found.Verdict = file.ReadOnly() ? StoreVerdict::ReadOnly : StoreVerdict::Good;
    if (found.Verdict != StoreVerdict::Good) return found;

    file.Run("PRAGMA journal_mode = WAL");
    file.Run("PRAGMA synchronous = FULL");
    file.KeepLogAtClose(false);
    found.Open = std::move(file);
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

bool MeansUnwritable(const SqliteError& error) {
    return error.Code == SQLITE_CANTOPEN || error.Code == SQLITE_READONLY;
}

bool HasLog(const fs::path& path) {
    const fs::path log = fs::path(path) += "-wal";
    return fs::exists(log) && fs::file_size(log) > 0;
}

// Without a log that would complete it, a file of broken pages has lost its end. Pages are multiples of 512 bytes.
bool IsCutOff(const fs::path& path) { return fs::is_regular_file(path) && fs::file_size(path) % 512 != 0; }

FoundStore ReadAnyWay(const fs::path& path) {
    try {
        Connection file(FileName(path), SQLITE_OPEN_READWRITE);
        if (!file.ReadOnly() || HasLog(path)) return ReadThrough(std::move(file));
    } catch (const SqliteError& error) {
        if (!MeansUnwritable(error) || HasLog(path)) throw;
    }
    return ReadThrough(Connection(ImmutableName(path), SQLITE_OPEN_READONLY | SQLITE_OPEN_URI));
}

}  // namespace

bool StoreFileExists(const fs::path& path) {
    return std::ranges::any_of(StoreFileSuffixes,
                               [&](const char* suffix) { return fs::exists(fs::path(path) += suffix); });
}

void MakeStoreFile(const fs::path& path) {
    const fs::path unfinished = fs::path(path) += ".new";
    for (const char* suffix : StoreFileSuffixes) fs::remove(fs::path(unfinished) += suffix);
    {
        const Connection file(FileName(unfinished), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
        file.Run("BEGIN");
        file.Run(("PRAGMA application_id = " + std::to_string(ApplicationId)).c_str());
        file.Run(("PRAGMA user_version = " + std::to_string(FormatVersion)).c_str());
        for (const char* table : StoreTableNames) file.Run(CreateStatement(table).c_str());
        file.Run("COMMIT");
        file.Run("PRAGMA journal_mode = WAL");
    }
    fs::rename(unfinished, path);
}

FoundStore ReadStoreFile(const fs::path& path) {
    // SQLite would take an empty file for a new one, and forget the log.
    if (!fs::exists(path) || (fs::is_regular_file(path) && fs::is_empty(path))) return {};
    if (IsNewerByHeader(path)) return {.Verdict = StoreVerdict::Newer};
    if (!HasLog(path) && IsCutOff(path)) return {};
    try {
        return ReadAnyWay(path);
    } catch (const SqliteError& error) {
        if (!MeansDamage(error)) throw;
        return {};
    }
}

}  // namespace orvelle::store
