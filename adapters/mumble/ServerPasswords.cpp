#include "adapters/mumble/ServerPasswords.h"

#include <sstream>
#include <utility>

#include "adapters/shared/PrivateFile.h"

namespace orvelle::mumble {

namespace {

constexpr std::size_t LongestFile = 1024 * 1024;

// A line ends a password in the file.
std::string OneLine(std::string password) {
    std::erase_if(password, [](char each) { return each == '\n' || each == '\r'; });
    return password;
}

}  // namespace

ServerPasswords::ServerPasswords(std::filesystem::path keptIn) : file(std::move(keptIn)) {
    const PrivateText text = ReadPrivateFile(file, LongestFile);
    std::istringstream lines(text.Text.value_or(""));
    for (std::string line; std::getline(lines, line);) {
        const std::size_t blank = line.find(' ');
        if (blank != line.npos) kept[line.substr(0, blank)] = line.substr(blank + 1);
    }
}

std::string ServerPasswords::Of(const std::string& server) const {
    for (const auto* passwords : {&tried, &kept})
        if (const auto found = passwords->find(server); found != passwords->end()) return found->second;
    return "";
}

void ServerPasswords::Try(const std::string& server, const std::string& password) { tried[server] = OneLine(password); }

void ServerPasswords::Keep(const std::string& server, const std::string& password) {
    if (tried.contains(server) && tried[server] == password) tried.erase(server);
    if (password.empty() || (kept.contains(server) && kept[server] == password)) return;
    kept[server] = password;
    Write();
}

void ServerPasswords::Forget(const std::string& server, const std::string& password) {
    if (tried.contains(server) && tried[server] == password) tried.erase(server);
    if (!kept.contains(server) || kept[server] != password) return;
    kept.erase(server);
    Write();
}

void ServerPasswords::Write() const {
    std::string text;
    for (const auto& [server, password] : kept) text.append(server).append(" ").append(password).append("\n");
    if (text.empty())
        RemovePrivateFile(file);
    else
        WritePrivateFile(file, text);
}

}  // namespace orvelle::mumble
