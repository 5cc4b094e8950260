#include "adapters/linux/LastWord.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <climits>

namespace orvelle::linux {

LastWord::LastWord() {
    std::array<int, 2> ends;
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
    reading = FileDescriptor(ends[0]);
    writing = FileDescriptor(ends[1]);
}

// In one piece, with the zero that ends it.
void LastWord::Say(const std::string& text) {
    const std::string piece = text.substr(0, PIPE_BUF - 1);
    [[maybe_unused]] const ssize_t written = write(writing.Number(), piece.c_str(), piece.size() + 1);
    writing.Close();
}

std::optional<std::string> LastWord::Read(int descriptor) {
    std::array<char, PIPE_BUF> piece;
    const ssize_t size = read(descriptor, piece.data(), piece.size());
    if (size <= 0) return std::nullopt;
    const std::string text(piece.data(), static_cast<std::size_t>(size));
    return text.substr(0, text.find('\0'));
}

}  // namespace orvelle::linux
