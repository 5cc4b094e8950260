// Real sound servers of a test's own, which passes the same cases with each: PulseAudio, and PipeWire with what makes
// it serve PulseAudio's clients. Each starts without any device of the computer.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tests/linux/ChildProcess.h"

namespace orvelle::pulse {

class SoundServerProcesses {
public:
    SoundServerProcesses() = default;
    SoundServerProcesses(const SoundServerProcesses&) = delete;
    SoundServerProcesses& operator=(const SoundServerProcesses&) = delete;
    virtual ~SoundServerProcesses() = default;

    virtual void Start() = 0;
    void Signal(int signal);
    // As by SIGKILL: its socket stays.
    void Kill();

protected:
    void Run(std::vector<std::string> commandLine);
    // Until it is so by all of them.
    void Await(const std::function<bool()>& isSo);

private:
    std::vector<std::unique_ptr<linux::ChildProcess>> processes;
};

class PulseAudioServer : public SoundServerProcesses {
public:
    static constexpr const char* Microphone = "module-null-source";

    void Start() override;
};

class PipeWireServer : public SoundServerProcesses {
public:
    static constexpr const char* Microphone = "module-null-sink";

    void Start() override;
};

// Names a folder in the environment, for all that a user's sound server keeps and for the socket.
void NameSoundFolder(const std::filesystem::path& folder);

// Such a folder, which goes with this object.
class SoundFolder {
public:
    SoundFolder();
    SoundFolder(const SoundFolder&) = delete;
    SoundFolder& operator=(const SoundFolder&) = delete;
    ~SoundFolder();

    const std::filesystem::path& Path() const { return folder; }

private:
    std::filesystem::path folder;
};

// pactl on that server; what it printed, without the last line feed.
std::string Pactl(std::vector<std::string> words);

}  // namespace orvelle::pulse
