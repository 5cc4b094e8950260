// The servers' certificates as they were at first sight: a line each in a file of mode 0600, "HOST:PORT SHA-256",
// the hash as openssl prints it, AB:CD:... So a
// server that takes another's place is noticed, though nobody vouches for any. Held by the rooms for all of them.
#pragma once

#include <filesystem>
#include <map>
#include <string>

namespace orvelle::mumble {

class KnownServers {
public:
    // A file that can't be read counts as empty, and is written over by what is learnt.
    explicit KnownServers(std::filesystem::path file);

    enum class Meeting { First, Same, Other };
    // Looks at the file anew, since the user may have removed a line, or all.
    Meeting Meet(const std::string& server, const std::string& fingerprint);
    void Remember(const std::string& server, const std::string& fingerprint);
    const std::filesystem::path& File() const { return file; }

private:
    void Read();

    std::filesystem::path file;
    bool isInFile = false;                     // what is known
    std::map<std::string, std::string> known;  // fingerprints by server
};

}  // namespace orvelle::mumble
