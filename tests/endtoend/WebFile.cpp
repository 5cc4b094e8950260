#include "tests/endtoend/WebFile.h"

#include <sys/socket.h>
#include <unistd.h>

#include <utility>

namespace orvelle {

WebFile::WebFile(std::string fileContent) : content(std::move(fileContent)), serving([this] { Serve(); }) {}

WebFile::~WebFile() {
    shutdown(listener.Socket.Number(), SHUT_RDWR);  // ends the waiting
    serving.join();
}

std::string WebFile::Address() const { return "http://127.0.0.1:" + std::to_string(listener.Port()) + "/atis.wav"; }

void WebFile::Serve() {
    while (true) {
        const FileDescriptor caller(accept4(listener.Socket.Number(), nullptr, nullptr, SOCK_CLOEXEC));
        if (caller.Number() < 0) return;
        std::string request;
        char part[1024];
        while (request.find("\r\n\r\n") == std::string::npos) {
            const ssize_t size = read(caller.Number(), part, sizeof part);
            if (size <= 0) break;
            request.append(part, static_cast<std::size_t>(size));
        }
        ++asked;
        const std::string answer =
            "HTTP/1.1 200 OK\r\nContent-Type: audio/x-wav\r\nConnection: close\r\nContent-Length: " +
            std::to_string(content.size()) + "\r\n\r\n" + content;
        send(caller.Number(), answer.data(), answer.size(), MSG_NOSIGNAL);
    }
}

}  // namespace orvelle
