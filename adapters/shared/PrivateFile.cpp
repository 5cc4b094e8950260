#include "adapters/shared/PrivateFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <system_error>

#include "adapters/shared/FileDescriptor.h"
#include "adapters/shared/WholeFile.h"

namespace orvelle {

namespace {

namespace fs = std::filesystem;

std::string SystemReason() { return std::generic_category().message(errno); }

std::string SizeOf(std::size_t bytes) {
    constexpr std::size_t Mebibyte = std::size_t{1024} * 1024;
    return bytes > 0 && bytes % Mebibyte == 0 ? std::to_string(bytes / Mebibyte) + " MiB"
                                              : std::to_string(bytes) + " bytes";
}

// The bytes of the file, up to one more than `most`.
std::optional<std::string> ReadUpTo(const FileDescriptor& file, std::size_t most) {
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

}  // namespace

PrivateText ReadPrivateFile(const fs::path& file, std::size_t most) {
    // Looked at before it is opened: opening a device may do something. And after it, since it may be another by then.
    struct stat state {};
    if (lstat(file.c_str(), &state) != 0) {
        const bool isMissing = errno == ENOENT || errno == ENOTDIR;
        return {std::nullopt, isMissing ? "" : SystemReason()};
    }
    if (!S_ISREG(state.st_mode)) return {std::nullopt, "it is no plain file"};
    const FileDescriptor opened(open(file.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (!opened || fstat(opened.Number(), &state) != 0) return {std::nullopt, SystemReason()};
    if (!S_ISREG(state.st_mode)) return {std::nullopt, "it is no plain file"};

    std::optional<std::string> text = ReadUpTo(opened, most);
    if (!text) return {std::nullopt, SystemReason()};
    if (text->size() > most) return {std::nullopt, "it is longer than " + SizeOf(most)};
    return {std::move(text), ""};
}

std::string WritePrivateFile(const fs::path& file, std::string_view text) {
    const std::error_code error = WriteWholeFile(file, text);
    return error ? error.message() : "";
}

std::string RemovePrivateFile(const fs::path& file) {
    if (unlink(file.c_str()) != 0) return errno == ENOENT || errno == ENOTDIR ? "" : SystemReason();
    const std::error_code error = SyncFolder(file.parent_path());
    return error ? error.message() : "";
}

}  // namespace orvelle
