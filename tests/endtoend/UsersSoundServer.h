// A sound server of the test's own, as the user's whose panel is tested; there before the panel is, so a test stands on
// it first.
#pragma once

#include <QTemporaryDir>

#include "tests/devices/RecordedSoundServer.h"
#include "tests/devices/Tone.h"

namespace orvelle {

class UsersSoundServer {
protected:
    double LoudnessOf(double frequency) const { return orvelle::LoudnessOf(frequency, server.Heard()); }

    QTemporaryDir serversFolder;
    RecordedSoundServer server{serversFolder.path().toStdString()};
};

}  // namespace orvelle
