// A sound server of the test's own, as the user's whose panel is tested; there before the panel is, so a test stands on
// it first.
#pragma once

#include <QTemporaryDir>
#include <cstdlib>

#include "tests/devices/RecordedSoundServer.h"
#include "tests/devices/Tone.h"

namespace orvelle {

class UsersSoundServer {
protected:
    UsersSoundServer() { setenv("PULSE_SERVER", server.Address().c_str(), 1); }
    UsersSoundServer(const UsersSoundServer&) = delete;
    UsersSoundServer& operator=(const UsersSoundServer&) = delete;
    ~UsersSoundServer() { unsetenv("PULSE_SERVER"); }

    double LoudnessOf(double frequency) const { return orvelle::LoudnessOf(frequency, server.Heard()); }

    QTemporaryDir serversFolder;
    RecordedSoundServer server{serversFolder.path().toStdString()};
};

}  // namespace orvelle
