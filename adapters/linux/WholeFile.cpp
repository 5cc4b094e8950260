#include "adapters/linux/WholeFile.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdio>

#include "adapters/linux/FileDescriptor.h"

namespace orvelle::linux {

namespace {

namespace fs = std::filesystem;

bool MakeFolder(const fs::path& folder) {
    if (mkdir(folder.c_str(), S_IRWXU) == 0) return true;
    if (errno == EEXIST) return true;
    return errno == ENOENT && folder.has_relative_path() && MakeFolder(folder.parent_path()) &&
           mkdir(folder.c_str(), S_IRWXU) == 0;
}

bool WriteAll(int file, const std::string& text) {
    for (std::size_t done = 0; done < text.size();) {
        const ssize_t count = write(file, text.data() + done, text.size() - done);
        if (count < 0 && errno != EINTR) return false;
        if (count > 0) done += static_cast<std::size_t>(count);
    }
    return true;
}

bool WriteNew(const fs::path& file, const std::string& text) {
    // One that an end in the middle left behind, or a link that somebody put there, is not written into.
    if (unlink(file.c_str()) != 0 && errno != ENOENT) return false;
    const FileDescriptor opened(open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR));
    // The umask may have taken a right away that the user has.
    return opened && fchmod(opened.Number(), S_IRUSR | S_IWUSR) == 0 && WriteAll(opened.Number(), text) &&
           fsync(opened.Number()) == 0;
}

bool SyncFolder(const fs::path& folder) {
    const FileDescriptor opened(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return opened && fsync(opened.Number()) == 0;
}

std::error_code LastError() { return {errno, std::generic_category()}; }

}  // namespace

std::error_code WriteWholeFile(const fs::path& file, const std::string& text) {
    if (!MakeFolder(file.parent_path())) return LastError();
    const fs::path unfinished = fs::path(file) += ".new";
    if (!WriteNew(unfinished, text) || rename(unfinished.c_str(), file.c_str()) != 0) {
        const std::error_code error = LastError();
        unlink(unfinished.c_str());
        return error;
    }
    return SyncFolder(file.parent_path()) ? std::error_code() : LastError();
}

}  // namespace orvelle::linux
