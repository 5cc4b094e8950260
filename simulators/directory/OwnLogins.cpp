#include "simulators/directory/OwnLogins.h"

#include <optional>
#include <utility>

#include "adapters/shared/HostAndPort.h"
#include "adapters/shared/Utf8.h"

namespace orvelle::directory {

namespace {

constexpr const char* Section = "logins";

std::optional<OwnLogin> ReadLogin(const JsonValue& value) {
    OwnLogin login;
    for (const JsonMember& member : value.Members) {
        const bool isLogin = member.Name == "login";
        if (!isLogin && member.Name != "password") continue;
        if (member.Value.What != JsonValue::Kind::Text) return std::nullopt;
        (isLogin ? login.Login : login.Password) = member.Value.Text;
    }
    return value.What == JsonValue::Kind::Object ? std::optional(login) : std::nullopt;
}

}  // namespace

OwnLogins::OwnLogins(std::filesystem::path itsFile) : file(std::move(itsFile), "Your logins at voice servers") {}

std::string OwnLogins::Read() {
    logins.clear();
    return file.Read(Section, [this](const JsonMember& member) {
        const std::optional<OwnLogin> login = ReadLogin(member.Value);
        if (login) logins[HostInLowerCase(member.Name)] = *login;
        return login.has_value();
    });
}

const OwnLogin* OwnLogins::Find(const std::string& server) const {
    const auto found = logins.find(HostInLowerCase(server));
    return found == logins.end() ? nullptr : &found->second;
}

std::string OwnLogins::Set(const std::string& server, const OwnLogin& login) {
    auto next = logins;
    if (login == OwnLogin())
        next.erase(HostInLowerCase(server));
    else
        next[HostInLowerCase(server)] = {ToUtf8(login.Login), ToUtf8(login.Password)};
    std::string sentence = Write(next);
    if (sentence.empty()) logins = std::move(next);
    return sentence;
}

std::string OwnLogins::Write(const std::map<std::string, OwnLogin>& all) {
    std::string content;
    for (const auto& [server, login] : all)
        content += (content.empty() ? "{" : ", ") + JsonText(ToUtf8(server)) +
                   ": {\"login\": " + JsonText(login.Login) + ", \"password\": " + JsonText(login.Password) + "}";
    return file.Write(Section, content.empty() ? "{}" : content + "}");
}

}  // namespace orvelle::directory
