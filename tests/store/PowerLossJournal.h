// The journal of what a program changes on the disk: one head for each call that succeeded, and the bytes or paths that
// belong to it. Written by the watch that is loaded into the program (PowerLossWatch.cpp), read by who plays a loss of
// power. Its numbers are those of this computer, since nobody keeps it.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace orvelle::store {

// Begin: the program started, and has no file open.
enum class DiskCall : std::int32_t { Begin, Open, Close, Write, Resize, Sync, MakeFolder, Rename, Remove };

// The variable of the environment that names the journal's file.
constexpr const char* JournalVariable = "POWER_LOSS_JOURNAL";

struct DiskCallHead {
    DiskCall What;
    std::int32_t File;            // its descriptor, where there is one
    std::int64_t Number;          // Open: the flags; Write: the offset; Resize: the size; in bytes
    std::uint64_t FirstSize = 0;  // of what follows, in bytes
    std::uint64_t SecondSize = 0;
};

struct JournaledCall {
    DiskCallHead Head;
    std::string First;   // Write: the bytes; else the path, where there is one
    std::string Second;  // Rename: the new path
};

std::vector<JournaledCall> ReadJournal(const std::filesystem::path& file);

}  // namespace orvelle::store
