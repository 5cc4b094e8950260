#include "adapters/shared/WholeFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <string>

#include "adapters/shared/FileDescriptor.h"

namespace orvelle {

namespace {

namespace fs = std::filesystem;

std::error_code LastError() { return {errno, std::generic_category()}; }
std::error_code ErrorUnless(bool isWell) { return isWell ? std::error_code() : LastError(); }

bool WriteAll(int file, std::string_view text) {
    while (!text.empty()) {
        const ssize_t count = write(file, text.data(), text.size());
        if (count >= 0)
            text.remove_prefix(static_cast<std::size_t>(count));
        else if (errno != EINTR)
            return false;
    }
    return true;
}

// The umask may have taken a right away that the user has.
bool WriteOwn(int file, std::string_view text) {
    return fchmod(file, S_IRUSR | S_IWUSR) == 0 && WriteAll(file, text) && fsync(file) == 0;
}

std::error_code Rename(const fs::path& from, const fs::path& to) {
    if (rename(from.c_str(), to.c_str()) != 0) return LastError();
    return SyncFolder(to.parent_path());
}

}  // namespace

std::error_code WriteWholeFile(const fs::path& file, std::string_view text) {
    if (const std::error_code error = MakeOwnFolder(file.parent_path())) return error;
    std::string unfinished = file.string() + ".XXXXXX";
    FileDescriptor opened(mkostemp(unfinished.data(), O_CLOEXEC));
    if (!opened) return LastError();
    std::error_code error = ErrorUnless(WriteOwn(opened.Number(), text));
    opened.Close();
    if (!error) error = Rename(unfinished, file);
    // No longer there where it was renamed.
    if (error) unlink(unfinished.c_str());
    return error;
}

std::error_code MakeOwnFolder(const fs::path& folder) {
    if (folder.empty()) return {};
    struct stat state;
    if (stat(folder.c_str(), &state) == 0)
        return S_ISDIR(state.st_mode) ? std::error_code() : std::make_error_code(std::errc::not_a_directory);
    if (errno != ENOENT) return LastError();
    if (const std::error_code error = MakeOwnFolder(folder.parent_path())) return error;
    if (mkdir(folder.c_str(), S_IRWXU) == 0) {
        // As with a file the umask may have taken the user's own rights.
        chmod(folder.c_str(), S_IRWXU);
        // A folder above that can't be read can't be brought to the disk either, and the new one is of use all the
        // same.
        SyncFolder(folder.parent_path());
        return {};
    }
    // Another one made it meanwhile, or a link that leads nowhere bears its name.
    if (errno != EEXIST) return LastError();
    return ErrorUnless(stat(folder.c_str(), &state) == 0);
}

std::error_code RenameForGood(const fs::path& from, const fs::path& to) {
    const FileDescriptor file(open(from.c_str(), O_RDWR | O_CLOEXEC));
    if (!file || fsync(file.Number()) != 0) return LastError();
    return Rename(from, to);
}

std::error_code SyncFolder(const fs::path& folder) {
    const FileDescriptor opened(open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    // Not every file system can do so; one that can't keeps its names in its own way.
    return ErrorUnless(opened && (fsync(opened.Number()) == 0 || errno == EINVAL));
}

}  // namespace orvelle
