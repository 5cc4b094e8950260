// Loaded into a program before the C library (LD_PRELOAD), in whose place it takes the calls that change files: each is
// made as it is asked, and told to the journal once it has succeeded. A sync is told alone, for nothing needs it here.
// Calls that the store and SQLite don't make are left out; a change by one of them shows, since the journal then tells
// of another folder than the one on disk. It knows no library but C's, and keeps nothing but the journal.
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/types.h>
#include <sys/uio.h>
#include <unistd.h>

#include <array>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "tests/store/PowerLossJournal.h"

using orvelle::store::DiskCall;
using orvelle::store::DiskCallHead;

namespace {

int OpenJournal() {
    const char* name = std::getenv(orvelle::store::JournalVariable);
    if (name == nullptr) std::abort();
    return static_cast<int>(syscall(SYS_openat, AT_FDCWD, name, O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, S_IRWXU));
}

iovec Part(const void* bytes, std::size_t size) { return {const_cast<void*>(bytes), size}; }

// What is told keeps errno, since whoever asked may look at it.
void Tell(DiskCall what, int file, std::int64_t number, std::string_view first = {}, std::string_view second = {}) {
    static const int Journal = OpenJournal();
    const DiskCallHead head{what, file, number, first.size(), second.size()};
    const std::array<iovec, 3> parts{Part(&head, sizeof head), Part(first.data(), first.size()),
                                     Part(second.data(), second.size())};
    const long told = syscall(SYS_writev, Journal, parts.data(), parts.size());
    if (told != static_cast<long>(sizeof head + first.size() + second.size())) std::abort();
}

[[gnu::constructor]] void TellOfBeginning() { Tell(DiskCall::Begin, -1, 0); }

int OpenAndTell(const char* path, int flags, unsigned mode) {
    const auto file = static_cast<int>(syscall(SYS_openat, AT_FDCWD, path, flags, mode));
    if (file >= 0) Tell(DiskCall::Open, file, flags, path);
    return file;
}

ssize_t WriteAndTell(int file, const void* bytes, std::size_t size, off_t offset) {
    const ssize_t written = syscall(SYS_pwrite64, file, bytes, size, offset);
    if (written > 0)
        Tell(DiskCall::Write, file, offset, {static_cast<const char*>(bytes), static_cast<std::size_t>(written)});
    return written;
}

int ResizeAndTell(int file, off_t size) {
    const auto result = static_cast<int>(syscall(SYS_ftruncate, file, size));
    if (result == 0) Tell(DiskCall::Resize, file, size);
    return result;
}

int RemoveAndTell(const char* path) {
    const auto result = static_cast<int>(syscall(SYS_unlinkat, AT_FDCWD, path, 0));
    if (result == 0) Tell(DiskCall::Remove, -1, 0, path);
    return result;
}

int SyncAndTell(int file) {
    Tell(DiskCall::Sync, file, 0);
    return 0;
}

unsigned ModeOf(va_list rest, int flags) { return (flags & O_CREAT) != 0 ? va_arg(rest, unsigned) : 0; }

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const unsigned mode = ModeOf(rest, flags);
    va_end(rest);
    return OpenAndTell(path, flags, mode);
}

int open64(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const unsigned mode = ModeOf(rest, flags);
    va_end(rest);
    return OpenAndTell(path, flags, mode);
}

int close(int file) {
    const auto result = static_cast<int>(syscall(SYS_close, file));
    if (result == 0) Tell(DiskCall::Close, file, 0);
    return result;
}

ssize_t write(int file, const void* bytes, std::size_t size) {
    const off_t offset = syscall(SYS_lseek, file, 0, SEEK_CUR);
    const ssize_t written = syscall(SYS_write, file, bytes, size);
    if (offset >= 0 && written > 0)
        Tell(DiskCall::Write, file, offset, {static_cast<const char*>(bytes), static_cast<std::size_t>(written)});
    return written;
}

ssize_t pwrite(int file, const void* bytes, std::size_t size, off_t offset) {
    return WriteAndTell(file, bytes, size, offset);
}
ssize_t pwrite64(int file, const void* bytes, std::size_t size, off64_t offset) {
    return WriteAndTell(file, bytes, size, offset);
}

int ftruncate(int file, off_t size) noexcept { return ResizeAndTell(file, size); }
int ftruncate64(int file, off64_t size) noexcept { return ResizeAndTell(file, size); }

int fsync(int file) { return SyncAndTell(file); }
int fdatasync(int file) { return SyncAndTell(file); }

int mkdir(const char* path, mode_t mode) noexcept {
    const auto result = static_cast<int>(syscall(SYS_mkdirat, AT_FDCWD, path, mode));
    if (result == 0) Tell(DiskCall::MakeFolder, -1, 0, path);
    return result;
}

int rename(const char* from, const char* to) noexcept {
    const auto result = static_cast<int>(syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
    if (result == 0) Tell(DiskCall::Rename, -1, 0, from, to);
    return result;
}

int unlink(const char* path) noexcept { return RemoveAndTell(path); }
int remove(const char* path) noexcept { return RemoveAndTell(path); }  // of files; the store removes no folder
}
