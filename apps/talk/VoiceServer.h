// A voice server for the story of two pilots, with all that it keeps in a folder of its own: everybody may make
// channels, and it is heard on this computer alone. Needs the package mumble-server. Ends with the object.
#pragma once

#include <QByteArray>
#include <QProcess>
#include <QTemporaryDir>
#include <cstdint>
#include <string>

#include "apps/talk/VoiceServerFiles.h"

namespace orvelle {

class VoiceServer {
public:
    explicit VoiceServer(std::uint16_t port);
    VoiceServer(const VoiceServer&) = delete;
    VoiceServer& operator=(const VoiceServer&) = delete;
    ~VoiceServer();

    // "" for success, else why it can't be started.
    std::string Start();
    bool Serves();
    std::string Address() const { return "127.0.0.1:" + std::to_string(port); }
    // Whether the pilot of that callsign has gone into a channel.
    bool HasInChannel(const std::string& callsign);

private:
    using Rights = VoiceServerFiles::Rights;

    bool Says(const std::string& words);

    const std::uint16_t port;
    const QTemporaryDir folder;
    const VoiceServerFiles files;
    QProcess program;
    QByteArray said;
};

}  // namespace orvelle
