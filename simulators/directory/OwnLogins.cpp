#include "simulators/directory/OwnLogins.h"

#include <algorithm>
#include <cctype>
#include <utility>

namespace orvelle::directory {

namespace {

std::string LowerCase(std::string text) {
    std::ranges::transform(text, text.begin(), [](unsigned char character) { return std::tolower(character); });
    return text;
}

}  // namespace

OwnLogins::OwnLogins(std::filesystem::path itsFile) : file(std::move(itsFile)) {}

const OwnLogin* OwnLogins::Find(const std::string& server) const {
    const auto found = logins.find(LowerCase(server));
    return found == logins.end() ? nullptr : &found->second;
}

std::string OwnLogins::Set(const std::string& server, const OwnLogin& login) {
    if (login == OwnLogin())
        logins.erase(LowerCase(server));
    else
        logins[LowerCase(server)] = login;
    return "";
}

}  // namespace orvelle::directory
