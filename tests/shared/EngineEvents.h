// Writes down what a voice engine raises, in order.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/VoiceEngine.h"

namespace orvelle {

class EngineEvents {
public:
    explicit EngineEvents(VoiceEngineControl& engine) {
        engine.VVL_Started = [this] { list.push_back("Started"); };
        engine.VVL_Stopped = [this] { list.push_back("Stopped"); };
        engine.VVL_AudioStarted = [this] { list.push_back("AudioStarted"); };
        engine.VVL_AudioStopped = [this] { list.push_back("AudioStopped"); };
        engine.VVL_RoomJoinSucceed = [this](Long room) { Note("JoinSucceed", room); };
        engine.VVL_RoomJoinFailed = [this](Long room) { Note("JoinFailed", room); };
        engine.VVL_RoomKicked = [this](Long room) { Note("Kicked", room); };
        engine.VVL_RoomLeft = [this](Long room) { Note("Left", room); };
        engine.VVL_RoomAudioStarted = [this](Long room) { Note("RoomAudioStarted", room); };
        engine.VVL_RoomAudioStopped = [this](Long room) { Note("RoomAudioStopped", room); };
        engine.VVL_RoomStatusChanged = [this](Long room) { Note("Status", room); };
    }
    EngineEvents(const EngineEvents&) = delete;
    EngineEvents& operator=(const EngineEvents&) = delete;

    std::vector<std::string> Take() { return std::exchange(list, {}); }
    const std::vector<std::string>& Seen() const { return list; }
    void Note(const std::string& name, Long room) { list.push_back(name + " " + std::to_string(room)); }

private:
    std::vector<std::string> list;
};

}  // namespace orvelle
