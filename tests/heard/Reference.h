// What the machine itself takes and loses: the sound server's own loopback, with a buffer like our outputs', from a
// microphone into an ear of its own, while our engine carries the same sound. What did not come through here in time
// tells nothing of our engine. Ends with the object; std::runtime_error where it can't be had.
#pragma once

#include <string>

#include "tests/heard/SoundOfComputers.h"

namespace orvelle::heard {

class Reference {
public:
    Reference(SoundOfComputers& sounds, const std::string& microphone);
    Reference(const Reference&) = delete;
    Reference& operator=(const Reference&) = delete;
    ~Reference();

    // As a server that was late once may keep it late for ever.
    void Renew();

    static constexpr const char* Ear = "reference.monitor";

private:
    void Load();
    void Unload();

    SoundOfComputers& sounds;
    const std::string source;
    std::string module;
};

}  // namespace orvelle::heard
