// A sound server for the story of two pilots, without any of the computer's devices: a microphone and a headset for
// each pilot. A pilot's programs find it where a user's own sound server is, and their devices by the environment.
// Needs the package pulseaudio. Ends with the object.
#pragma once

#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <vector>

#include "platform/Types.h"

namespace orvelle {

// The sound of one device, from when it was begun.
class Listening {
public:
    Listening() = default;
    Listening(const Listening&) = delete;
    Listening& operator=(const Listening&) = delete;
    ~Listening();

    void Begin(const QString& source, const QString& socket);
    // Takes in what came; 16 bits, mono, 48 kHz.
    const std::vector<short>& Samples();

private:
    QProcess recorder;
    std::vector<short> samples;
};

class OwnSound {
public:
    // `runFolders`: each pilot's XDG_RUNTIME_DIR.
    explicit OwnSound(std::vector<QString> runFolders);
    OwnSound(const OwnSound&) = delete;
    OwnSound& operator=(const OwnSound&) = delete;
    ~OwnSound();

    void Start();
    bool Serves();
    // What a pilot's panel needs in its environment to have that pilot's devices.
    static void Name(QProcessEnvironment& environment, std::size_t pilot);

    void ListenToMicrophone(Listening& listening, std::size_t pilot) const;
    void ListenToHeadset(Listening& listening, std::size_t pilot) const;
    // Plays a file into a pilot's microphone.
    void Speak(const QString& file, std::size_t pilot);
    bool Speaks() const { return player.state() != QProcess::NotRunning; }

private:
    QString Socket(std::size_t pilot) const;

    const std::vector<QString> folders;
    QProcess server;
    QProcess player;
    QProcess asking;
};

}  // namespace orvelle
