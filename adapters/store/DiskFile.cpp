#include "adapters/store/DiskFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace orvelle::store {

namespace {

namespace fs = std::filesystem;

constexpr mode_t OwnFile = S_IRUSR | S_IWUSR;
constexpr mode_t OwnFolder = S_IRWXU;

[[noreturn]] void Fail(const char* what, const fs::path& path) {
    throw fs::filesystem_error(what, path, std::error_code(errno, std::generic_category()));
}

void Sync(const fs::path& path, int flags) {
    const OpenFile file(open(path.c_str(), flags | O_CLOEXEC));
    if (!file || fsync(file.Number()) != 0) Fail("cannot sync", path);
}

fs::path FolderOf(const fs::path& path) { return path.has_parent_path() ? path.parent_path() : "."; }

}  // namespace

OpenFile::~OpenFile() {
    if (number >= 0) close(number);
}

PathKind KindOf(const fs::path& path) {
    struct stat status;
    if (stat(path.c_str(), &status) != 0) {
        if (errno != ENOENT) Fail("cannot look at", path);
        return lstat(path.c_str(), &status) == 0 ? PathKind::LinkToNowhere : PathKind::Missing;
    }
    if (S_ISREG(status.st_mode)) return PathKind::File;
    if (S_ISCHR(status.st_mode)) return PathKind::Characters;
    return S_ISDIR(status.st_mode) ? PathKind::Folder : PathKind::Other;
}

FileIdentity IdentityOf(const fs::path& path) {
    struct stat status;
    if (stat(path.c_str(), &status) != 0) return {};
    return {status.st_dev, status.st_ino};
}

std::string StartOf(const fs::path& path, std::size_t size) {
    const OpenFile file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    std::string bytes(size, '\0');
    const ssize_t got = file ? read(file.Number(), bytes.data(), size) : -1;
    bytes.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
    return bytes;
}

void MakeFolder(const fs::path& folder) {
    if (folder.empty() || fs::is_directory(folder)) return;
    MakeFolder(folder.parent_path());
    if (mkdir(folder.c_str(), OwnFolder) == 0) {
        // A parent that can't be read can't be synced either, and the folder is of use all the same.
        const OpenFile parent(open(FolderOf(folder).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        if (parent) fsync(parent.Number());
    } else if (errno != EEXIST) {
        Fail("cannot make the folder", folder);
    }
    if (!fs::is_directory(folder)) {
        errno = ENOTDIR;
        Fail("cannot use the folder", folder);
    }
}

void MakeEmptyFile(const fs::path& path) {
    fs::remove(path);
    if (!OpenFile(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, OwnFile)))
        Fail("cannot make", path);
}

// By name: a file that this process opened and closed would lose the locks that SQLite holds on it.
void MakePrivate(const fs::path& path) {
    struct stat status;
    if (stat(path.c_str(), &status) != 0 || status.st_uid != geteuid() || !S_ISREG(status.st_mode)) return;
    if ((status.st_mode & (S_IRWXG | S_IRWXO)) != 0) chmod(path.c_str(), status.st_mode & S_IRWXU);
}

void RenameForGood(const fs::path& from, const fs::path& to) {
    Sync(from, O_RDWR);
    fs::rename(from, to);
    Sync(FolderOf(to), O_RDONLY | O_DIRECTORY);
}

}  // namespace orvelle::store
