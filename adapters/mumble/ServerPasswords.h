// The passwords that voice servers ask for: a line each in a file of mode 0600, "HOST:PORT PASSWORD". One that the user
// gave is tried first, and kept once the server has taken it. Held by the rooms for all of them.
#pragma once

#include <filesystem>
#include <map>
#include <string>

namespace orvelle::mumble {

class ServerPasswords {
public:
    explicit ServerPasswords(std::filesystem::path file);

    // "" where none is known.
    std::string Of(const std::string& server) const;
    void Try(const std::string& server, const std::string& password);
    // The server has taken it.
    void Keep(const std::string& server, const std::string& password);
    // The server has not; nothing is done where another one is known by now.
    void Forget(const std::string& server, const std::string& password);

private:
    void Write() const;

    std::filesystem::path file;
    std::map<std::string, std::string> kept;
    std::map<std::string, std::string> tried;
};

}  // namespace orvelle::mumble
