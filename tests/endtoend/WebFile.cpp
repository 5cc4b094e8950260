#include "tests/endtoend/WebFile.h"

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

#include <stdexcept>
#include <utility>

namespace orvelle {

WebFile::WebFile(std::string fileContent)
    : content(std::move(fileContent)), listening(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in place{};
    place.sin_family = AF_INET;
    place.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (bind(listening.Number(), reinterpret_cast<const sockaddr*>(&place), sizeof place) != 0 ||
        listen(listening.Number(), 8) != 0)
        throw std::runtime_error("the web server can't be had");
    serving = std::thread([this] { Serve(); });
}

WebFile::~WebFile() {
    shutdown(listening.Number(), SHUT_RDWR);  // ends the waiting
    serving.join();
}

std::string WebFile::Address() const {
    sockaddr_in place{};
    socklen_t size = sizeof place;
    getsockname(listening.Number(), reinterpret_cast<sockaddr*>(&place), &size);
    return "http://127.0.0.1:" + std::to_string(ntohs(place.sin_port)) + "/atis.wav";
}

void WebFile::Serve() {
    while (true) {
        const FileDescriptor caller(accept4(listening.Number(), nullptr, nullptr, SOCK_CLOEXEC));
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
