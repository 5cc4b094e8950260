// The story of two pilots on one frequency: one says a sentence while the talk key is down, the other one hears it. All
// in it is real but the devices: voice server, sound server, panels, keys, speech. What was heard is kept as a file and
// its levels as a picture.
#pragma once

#include <QDir>
#include <memory>
#include <string>
#include <vector>

#include "apps/talk/OwnSound.h"
#include "apps/talk/Pilot.h"
#include "apps/talk/VoiceServer.h"
#include "apps/three/Telling.h"

namespace orvelle {

class TalkStory {
public:
    // The pilots' folders are made in `workFolder`, where nobody else may write. `resultFolder` is made.
    TalkStory(EventLoop& loop, const QDir& workFolder, const QDir& resultFolder, const QString& displayScript);

    // "" if the sentence was heard, else why not, in a sentence.
    std::string Play();
    void Stop() { telling.Stop(); }

private:
    std::string MakeSpeech();
    bool SwitchOn();
    bool Join();
    bool StartPanels();
    bool Tune();
    bool Talk();
    std::string Judge();

    Telling telling;
    const QDir work;
    const QDir results;
    std::vector<std::unique_ptr<Pilot>> pilots;
    VoiceServer server;
    std::unique_ptr<OwnSound> sound;
    Listening microphone;
    Listening headset;
    std::size_t spokenFrom = 0;  // samples of the two
    std::size_t heardFrom = 0;
};

}  // namespace orvelle
