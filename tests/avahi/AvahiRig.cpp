#include "tests/avahi/AvahiRig.h"

#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>

#include "tests/linux/ServeUntil.h"

namespace orvelle::avahi {

namespace {

// All tests of one run use one place: the library reads the bus's address once.
std::filesystem::path OwnFolder() {
    return std::filesystem::path(testing::TempDir()) / ("orvelle-avahi-" + std::to_string(getpid()));
}

constexpr const char* BusConfiguration = R"(
<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig><type>system</type><listen>unix:path=%</listen><auth>EXTERNAL</auth><policy context="default">
<allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/><allow own="*"/><allow user="*"/>
</policy></busconfig>)";

constexpr const char* DaemonConfiguration =
    "[server]\nhost-name=localhost\ndomain-name=local\nuse-ipv6=no\nallow-interfaces=lo\nenable-dbus=yes\n"
    "disallow-other-stacks=no\n[publish]\npublish-workstation=no\n";

// Its process id file and its socket have fixed places, in a folder that only root could make, and that must be its own
// user's, who is this one here.
constexpr const char* RunDaemon =
    "ip link set lo up && ip link set lo multicast on && mount -t tmpfs none /run && mkdir /run/avahi-daemon && "
    "sed \"s/^avahi:[^:]*:[0-9]*:[0-9]*:/avahi:x:$(id -u):$(id -g):/\" /etc/passwd >/run/passwd && "
    "sed \"s/^avahi:[^:]*:[0-9]*:/avahi:x:$(id -g):/\" /etc/group >/run/group && "
    "mount --bind /run/passwd /etc/passwd && mount --bind /run/group /etc/group && "
    "exec /usr/sbin/avahi-daemon --no-drop-root --no-chroot --no-rlimits --debug -f \"$0\"";

}  // namespace

AvahiRig::AvahiRig() : folder(OwnFolder()) {
    std::filesystem::create_directories(folder);
    std::string configuration = BusConfiguration;
    configuration.replace(configuration.find('%'), 1, (folder / "bus").string());
    std::ofstream(folder / "bus.conf") << configuration;
    std::ofstream(folder / "avahi.conf") << DaemonConfiguration;
    UseOwnBus();
}

void AvahiRig::UseOwnBus() {
    setenv("DBUS_SYSTEM_BUS_ADDRESS", ("unix:path=" + (OwnFolder() / "bus").string()).c_str(), 1);
}

AvahiRig::~AvahiRig() {
    StopDaemon();
    StopBus();
    std::filesystem::remove_all(folder);
}

void AvahiRig::StartBus() {
    std::filesystem::remove(folder / "bus");
    bus = std::make_unique<linux::ChildProcess>(
        std::vector<std::string>{"dbus-daemon", "--nofork", "--nopidfile", "--print-address",
                                 "--config-file=" + (folder / "bus.conf").string()});
    ASSERT_NE(bus->ReadLine(), "") << bus->Errors();  // its address, once it listens
}

void AvahiRig::StartDaemon() {
    std::vector<std::string> command{OWN_NAMESPACES, "--net", "--mount"};
    // Who isn't root may have namespaces inside one of users, under the own name that the bus knows.
    if (geteuid() != 0) command.insert(command.end(), {"--user", "--map-current-user", "--keep-caps"});
    command.insert(command.end(), {"sh", "-c", RunDaemon, (folder / "avahi.conf").string()});
    daemon = std::make_unique<linux::ChildProcess>(command);
    linux::Await({daemon.get()}, [] {
        linux::ChildProcess version({"dbus-send", "--system", "--print-reply", "--dest=org.freedesktop.Avahi", "/",
                                     "org.freedesktop.Avahi.Server.GetVersionString"});
        return version.Wait() == 0;
    });
}

std::unique_ptr<linux::ChildProcess> AvahiRig::Announce(const std::string& name, int port,
                                                        std::vector<std::string> texts) {
    std::vector<std::string> command{"avahi-publish", "-s", name, "_orvelle._tcp", std::to_string(port)};
    command.insert(command.end(), texts.begin(), texts.end());
    return std::make_unique<linux::ChildProcess>(command);
}

bool AvahiRig::Until(const std::function<bool()>& isSo) { return linux::ServeUntil(loop, isSo); }

long long AvahiRig::LongestTurnIn(std::chrono::milliseconds time) {
    const auto begin = std::chrono::steady_clock::now();
    auto before = begin;
    auto longest = std::chrono::steady_clock::duration::zero();
    Until([&] {
        const auto now = std::chrono::steady_clock::now();
        longest = std::max(longest, now - before);
        before = now;
        return now - begin >= time;
    });
    return std::chrono::duration_cast<std::chrono::milliseconds>(longest).count();
}

}  // namespace orvelle::avahi
