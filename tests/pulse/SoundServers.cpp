#include "tests/pulse/SoundServers.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <fstream>

#include "adapters/shared/FileDescriptor.h"

namespace orvelle::pulse {

namespace {

// Whether a server listens there; the file may be there before it does, and stay when it is gone.
bool Listens(const std::filesystem::path& file) {
    const FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_un address{AF_UNIX, {}};
    file.string().copy(std::data(address.sun_path), sizeof(address.sun_path) - 1);
    return connect(socket.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0;
}

std::filesystem::path RuntimeFolder() { return std::getenv("XDG_RUNTIME_DIR"); }

// As a session has it before any server starts: of a server and a client that make it at once, the server would end.
void MakeSocketFolder() { std::filesystem::create_directories(RuntimeFolder() / "pulse"); }

// Each sink takes some descriptors, and a user has few by himself.
std::vector<std::string> WithDescriptors(const char* program) { return {"prlimit", "--nofile=4096:", program}; }

}  // namespace

void SoundServerProcesses::Signal(int signal) {
    for (const auto& process : processes) process->Kill(signal);
}

void SoundServerProcesses::Kill() {
    while (!processes.empty()) processes.pop_back();
}

void SoundServerProcesses::Run(std::vector<std::string> commandLine) {
    processes.push_back(std::make_unique<linux::ChildProcess>(std::move(commandLine)));
}

void SoundServerProcesses::Await(const std::function<bool()>& isSo) {
    std::vector<linux::ChildProcess*> all;
    for (const auto& process : processes) all.push_back(process.get());
    linux::Await(all, isSo);
}

void PulseAudioServer::Start() {
    MakeSocketFolder();
    // By itself it has few descriptors, and each sink takes some.
    const std::string settings = RuntimeFolder() / "daemon.conf";
    std::ofstream(settings) << "rlimit-nofile = 4096\n";
    setenv("PULSE_CONFIG", settings.c_str(), 1);
    Run({"pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no", "--disable-shm=yes",
         "--high-priority=no", "--realtime=no", "-L",
         "module-native-protocol-unix auth-anonymous=1 socket=" + (RuntimeFolder() / "pulse" / "native").string()});
    Await([] { return !Pactl({"info"}).empty(); });
}

void PipeWireServer::Start() {
    const std::string bus = "unix:path=" + (RuntimeFolder() / "bus").string();
    setenv("DBUS_SESSION_BUS_ADDRESS", bus.c_str(), 1);
    MakeSocketFolder();
    Run({"dbus-daemon", "--session", "--nofork", "--nosyslog", "--nopidfile", "--address=" + bus});
    Await([] { return Listens(RuntimeFolder() / "bus"); });
    Run(WithDescriptors("pipewire"));
    Await([] { return Listens(RuntimeFolder() / "pipewire-0"); });
    Run(WithDescriptors("wireplumber"));
    Run(WithDescriptors("pipewire-pulse"));
    // It gives a server without sinks one of its own.
    Await([] { return Pactl({"info"}).find("Default Sink: auto_null") != std::string::npos; });
}

void NameSoundFolder(const std::filesystem::path& folder) {
    for (const char* const name : {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_STATE_HOME"})
        setenv(name, folder.c_str(), 1);
    for (const char* const name : {"PULSE_SERVER", "PULSE_RUNTIME_PATH", "PULSE_STATE_PATH"}) unsetenv(name);
}

SoundFolder::SoundFolder() {
    std::string pattern = std::filesystem::temp_directory_path() / "orvelle-sound-XXXXXX";
    folder = mkdtemp(pattern.data());
    NameSoundFolder(folder);
}

SoundFolder::~SoundFolder() { std::filesystem::remove_all(folder); }

std::string Pactl(std::vector<std::string> words) {
    words.insert(words.begin(), {"env", "LC_ALL=C", "pactl"});
    linux::ChildProcess pactl(words);
    std::string printed;
    std::array<char, 4096> piece;
    for (ssize_t got = 0; (got = read(pactl.Output(), piece.data(), piece.size())) > 0;)
        printed.append(piece.data(), static_cast<std::size_t>(got));
    if (printed.ends_with('\n')) printed.pop_back();
    return pactl.Wait() == 0 ? printed : "";
}

}  // namespace orvelle::pulse
