// The user's own logins at voice servers, which no public directory should hold: kept in directory-logins.json of the
// data folder, mode 0600, joined to directories by the name of the voice server's host.
//
//   {"version": 1, "logins": {"voice.example.org:8767": {"login": "pilot7", "password": "..."}}}
#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "simulators/directory/KeptFile.h"

namespace orvelle::directory {

struct OwnLogin {
    std::string Login;
    std::string Password;
    bool operator==(const OwnLogin&) const = default;
};

class OwnLogins {
public:
    explicit OwnLogins(std::filesystem::path file);

    // "" for success or where there is no file, else one sentence; a damaged file is kept aside under another name when
    // it is written next.
    std::string Read();
    // The one of a server as a directory names it; upper and lower case are alike. Null for none.
    const OwnLogin* Find(const std::string& server) const;
    // Both empty takes it out. "" for success, else one sentence; then nothing has changed.
    std::string Set(const std::string& server, const OwnLogin& login);
    const std::map<std::string, OwnLogin>& All() const { return logins; }

private:
    std::string Write(const std::map<std::string, OwnLogin>& all);

    KeptFile file;
    std::map<std::string, OwnLogin> logins;  // by the server in lower case
};

}  // namespace orvelle::directory
