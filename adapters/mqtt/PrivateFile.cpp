#include "adapters/mqtt/PrivateFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <system_error>

namespace orvelle::mqtt {

namespace {

namespace fs = std::filesystem;

std::string SystemReason() { return std::generic_category().message(errno); }

class OpenFile {
public:
    explicit OpenFile(int opened) : number(opened) {}
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile() {
        if (number >= 0) close(number);
    }

    explicit operator bool() const { return number >= 0; }
    int Number() const { return number; }

private:
    const int number;
};

// The bytes of the file, up to one more than `most`.
std::optional<std::string> ReadUpTo(const OpenFile& file, std::size_t most) {
    std::string text;
    std::array<char, 4096> part{};
    while (text.size() <= most) {
        const ssize_t count = read(file.Number(), part.data(), part.size());
        if (count == 0) return text;
        if (count > 0)
            text.append(part.data(), static_cast<std::size_t>(count));
        else if (errno != EINTR)
            return std::nullopt;
    }
    return text;
}

bool WriteAll(const OpenFile& file, std::string_view text) {
    while (!text.empty()) {
        const ssize_t count = write(file.Number(), text.data(), text.size());
        if (count >= 0)
            text.remove_prefix(static_cast<std::size_t>(count));
        else if (errno != EINTR)
            return false;
    }
    return fsync(file.Number()) == 0;
}

// So that the new name, too, survives a loss of power. Not every file system can; the file is there all the same.
void KeepNames(const fs::path& folder) {
    const OpenFile opened(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened) fsync(opened.Number());
}

}  // namespace

PrivateText ReadPrivateFile(const fs::path& file, std::size_t most) {
    // Looked at before it is opened: opening a device may do something. And after it, since it may be another by then.
    struct stat state {};
    if (lstat(file.c_str(), &state) != 0) {
        const bool isMissing = errno == ENOENT || errno == ENOTDIR;
        return {std::nullopt, isMissing ? "" : SystemReason()};
    }
    if (!S_ISREG(state.st_mode)) return {std::nullopt, "it is no plain file"};
    const OpenFile opened(open(file.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (!opened || fstat(opened.Number(), &state) != 0) return {std::nullopt, SystemReason()};
    if (!S_ISREG(state.st_mode)) return {std::nullopt, "it is no plain file"};

    std::optional<std::string> text = ReadUpTo(opened, most);
    if (!text) return {std::nullopt, SystemReason()};
    if (text->size() > most) return {std::nullopt, "it is longer than " + std::to_string(most) + " bytes"};
    return {std::move(text), ""};
}

std::string WritePrivateFile(const fs::path& file, std::string_view text) {
    std::error_code error;
    fs::create_directories(file.parent_path(), error);
    if (error) return error.message();

    // Made with mode 0600 from the beginning, and with a name of its own, since two may write at a time.
    std::string unfinished = file.string() + ".XXXXXX";
    const OpenFile opened(mkostemp(unfinished.data(), O_CLOEXEC));
    if (!opened) return SystemReason();
    if (!WriteAll(opened, text) || rename(unfinished.c_str(), file.c_str()) != 0) {
        std::string reason = SystemReason();
        unlink(unfinished.c_str());
        return reason;
    }
    KeepNames(file.parent_path());
    return "";
}

std::string RemovePrivateFile(const fs::path& file) {
    if (unlink(file.c_str()) == 0)
        KeepNames(file.parent_path());
    else if (errno != ENOENT && errno != ENOTDIR)
        return SystemReason();
    return "";
}

}  // namespace orvelle::mqtt
