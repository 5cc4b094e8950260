// What the store asks of the file system beside SQLite: what stands at a path, before it is opened, and files that are
// the user's alone. Called within this folder. What fails throws filesystem_error; nothing here waits for anybody.
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <filesystem>
#include <string>

namespace orvelle::store {

// Links are followed, but for one that leads nowhere.
enum class PathKind { Missing, File, Characters, Folder, LinkToNowhere, Other };
PathKind KindOf(const std::filesystem::path& path);

// Tells a file from another one that took its name. All 0 where there is none.
struct FileIdentity {
    dev_t Device = 0;
    ino_t Number = 0;
    bool operator==(const FileIdentity&) const = default;
};
FileIdentity IdentityOf(const std::filesystem::path& path);

// The first bytes, fewer where there are fewer.
std::string StartOf(const std::filesystem::path& path, std::size_t size);

// Makes what is missing of a folder and those above it, for the user alone whatever the umask. Its name
// is on disk when it returns, or what is synced in it would be lost with the power.
void MakeFolder(const std::filesystem::path& folder);
// Makes an empty file for the user alone, in the place of another one.
void MakeEmptyFile(const std::filesystem::path& path);
// Takes a file of the user's from all others; leaves alone what is somebody else's.
void MakePrivate(const std::filesystem::path& path);
// Both files are in one folder. On disk under its new name when it returns.
void PutInPlace(const std::filesystem::path& from, const std::filesystem::path& to);

}  // namespace orvelle::store
