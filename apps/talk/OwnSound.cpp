#include "apps/talk/OwnSound.h"

#include <QDir>
#include <cstring>

#include "apps/three/ChildPrograms.h"

namespace orvelle {

namespace {

QString Microphone(std::size_t pilot) { return "microphone" + QString::number(pilot + 1); }
QString Headset(std::size_t pilot) { return "headset" + QString::number(pilot + 1); }

}  // namespace

Listening::~Listening() { EndChild(recorder); }

void Listening::Begin(const QString& source, const QString& socket) {
    StartChild(
        recorder, "parec",
        {"--server", socket, "--device", source, "--format=s16ne", "--rate=48000", "--channels=1", "--latency-msec=5"});
}

const std::vector<short>& Listening::Samples() {
    if (!recorder.isOpen()) return samples;
    const QByteArray came = recorder.read(recorder.bytesAvailable() / 2 * 2);
    const std::size_t before = samples.size();
    samples.resize(before + static_cast<std::size_t>(came.size()) / sizeof(short));
    std::memcpy(samples.data() + before, came.constData(), static_cast<std::size_t>(came.size()));
    return samples;
}

OwnSound::OwnSound(std::vector<QString> runFolders) : folders(std::move(runFolders)) {}

OwnSound::~OwnSound() {
    EndChild(asking);
    EndChild(player);
    EndChild(server);
}

QString OwnSound::Socket(std::size_t pilot) const { return folders[pilot] + "/pulse/native"; }

void OwnSound::Start() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_RUNTIME_DIR", folders.front());
    environment.insert("HOME", folders.front());
    server.setProcessEnvironment(environment);
    server.setProcessChannelMode(QProcess::MergedChannels);
    QStringList words{"-n",
                      "--daemonize=no",
                      "--exit-idle-time=-1",
                      "--use-pid-file=no",
                      "--disable-shm=yes",
                      "--realtime=no",
                      "--high-priority=no"};
    for (std::size_t pilot = 0; pilot < folders.size(); ++pilot) {
        QDir(folders[pilot]).mkpath("pulse");
        for (const QString& sink : {Microphone(pilot), Headset(pilot)})
            words += QStringList{"-L", "module-null-sink rate=48000 channels=1 sink_name=" + sink};
        words += QStringList{"-L", "module-native-protocol-unix auth-anonymous=1 socket=" + Socket(pilot)};
    }
    StartChild(server, "pulseaudio", words);
}

bool OwnSound::Serves() {
    if (asking.state() != QProcess::NotRunning) return false;
    if (asking.isOpen() && asking.exitStatus() == QProcess::NormalExit && asking.exitCode() == 0 &&
        asking.readAll().contains(Headset(folders.size() - 1).toUtf8()))
        return true;
    asking.setProcessChannelMode(QProcess::MergedChannels);
    StartChild(asking, "pactl", {"--server", Socket(folders.size() - 1), "list", "short", "sinks"});
    return false;
}

void OwnSound::Name(QProcessEnvironment& environment, std::size_t pilot) {
    environment.remove("PULSE_SERVER");
    environment.insert("PULSE_SOURCE", Microphone(pilot) + ".monitor");
    environment.insert("PULSE_SINK", Headset(pilot));
}

void OwnSound::ListenToMicrophone(Listening& listening, std::size_t pilot) const {
    listening.Begin(Microphone(pilot) + ".monitor", Socket(pilot));
}

void OwnSound::ListenToHeadset(Listening& listening, std::size_t pilot) const {
    listening.Begin(Headset(pilot) + ".monitor", Socket(pilot));
}

void OwnSound::Speak(const QString& file, std::size_t pilot) {
    StartChild(player, "paplay", {"--server", Socket(pilot), "--device", Microphone(pilot), "--latency-msec=20", file});
}

}  // namespace orvelle
