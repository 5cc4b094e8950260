// An open file of this process that closes itself. Empty (-1) where opening failed or nothing was opened yet.
#pragma once

#include <unistd.h>

#include <utility>

namespace orvelle {

class FileDescriptor {
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int number) : number(number) {}
    FileDescriptor(FileDescriptor&& other) noexcept : number(std::exchange(other.number, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(number, other.number);
        return *this;
    }
    ~FileDescriptor() { Close(); }

    int Number() const { return number; }
    explicit operator bool() const { return number >= 0; }
    void Close() {
        if (number >= 0) close(std::exchange(number, -1));
    }

private:
    int number = -1;
};

}  // namespace orvelle
