// Writes small files of the user's own so that whoever reads one, at any moment and after any failure, finds the old
// text or the new one: it is written beside the file, brought to the disk, and renamed. Read and written by the user
// alone, whatever the umask; so are the folders that were missing. Called by whoever keeps files: settings, keys, the
// desktop's entries. Nothing throws; what failed is the system's error.
#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>

namespace orvelle {

// No error if all steps succeeded and the text is on the disk. Several may write one file at a time, since each writes
// under a name of its own, the file's with six letters more. The folder is made, too.
std::error_code WriteWholeFile(const std::filesystem::path& file, std::string_view text);

// Makes what is missing of a folder and those above it. No error for a folder that is there. Its name is on the disk
// when it returns, or what is brought to the disk in it would be lost with the power.
std::error_code MakeOwnFolder(const std::filesystem::path& folder);

// Both are in one folder. On the disk under its new name when it returns.
std::error_code RenameForGood(const std::filesystem::path& from, const std::filesystem::path& to);

// Brings to the disk which names a folder has: what was made, renamed or removed there.
std::error_code SyncFolder(const std::filesystem::path& folder);

}  // namespace orvelle
