#include "adapters/mumble/KnownServers.h"

#include <sstream>
#include <utility>

#include "adapters/shared/PrivateFile.h"

namespace orvelle::mumble {

namespace {

constexpr std::size_t LongestFile = 1024 * 1024;

}  // namespace

KnownServers::KnownServers(std::filesystem::path keptIn) : file(std::move(keptIn)) {}

KnownServers::Meeting KnownServers::Meet(const std::string& server, const std::string& fingerprint) {
    Read();
    const auto found = known.find(server);
    if (found == known.end()) return Meeting::First;
    return found->second == fingerprint ? Meeting::Same : Meeting::Other;
}

void KnownServers::Remember(const std::string& server, const std::string& fingerprint) {
    if (Meet(server, fingerprint) == Meeting::Same) return;
    known[server] = fingerprint;
    std::string text;
    for (const auto& [name, seen] : known) text.append(name).append(" ").append(seen).append("\n");
    isInFile = WritePrivateFile(file, text).empty();
}

// What could not be written is known for as long as the program runs.
void KnownServers::Read() {
    const PrivateText kept = ReadPrivateFile(file, LongestFile);
    const bool isRemoved = !kept.Text && kept.Reason.empty() && isInFile;
    if (!kept.Text && !isRemoved) return;
    known.clear();
    if (isRemoved) return;
    isInFile = true;
    std::istringstream lines(*kept.Text);
    std::string server;
    std::string fingerprint;
    while (lines >> server >> fingerprint) known[server] = fingerprint;
}

}  // namespace orvelle::mumble
