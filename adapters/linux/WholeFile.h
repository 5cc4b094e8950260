// Writes a small file of the user's own so that whoever reads it, at any moment and after any failure, finds the old
// text or the new one. Read and written by the user alone, whatever the umask; so are the folders that were missing.
#pragma once

#include <filesystem>
#include <string>
#include <system_error>

namespace orvelle::linux {

// What failed, with the old text left as it was; no error if all steps succeeded and the text is on the disk. What is
// being written is beside the file, under its name with ".new".
std::error_code WriteWholeFile(const std::filesystem::path& file, const std::string& text);

}  // namespace orvelle::linux
