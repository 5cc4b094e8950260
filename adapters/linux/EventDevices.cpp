#include "adapters/linux/EventDevices.h"

#include <fcntl.h>
#include <sys/inotify.h>

#include <cerrno>
#include <charconv>
#include <optional>
#include <set>
#include <utility>

namespace orvelle::linux {

namespace {

constexpr std::string_view Prefix = "event";
// Events of one device that are told in one turn of the loop, so that a broken device leaves others their turn.
constexpr int EventsInATurn = 256;

std::optional<int> NumberOf(std::string_view name) {
    int number = 0;
    if (!name.starts_with(Prefix)) return std::nullopt;
    const char* const end = name.data() + name.size();
    const auto [rest, failed] = std::from_chars(name.data() + Prefix.size(), end, number);
    if (failed != std::errc() || rest != end) return std::nullopt;
    return number;
}

}  // namespace

EventDevices::EventDevices(EventLoop& eventLoop, std::filesystem::path folder, Wanted* isWanted)
    : loop(eventLoop), folder(std::move(folder)), isWanted(isWanted), watch(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {}

void EventDevices::Begin() {
    if (watch) watched = loop.WhenReadable(watch.Number(), [this] { ServeWatch(); });
    Watch();
    LookAtFolder();
}

void EventDevices::Watch() {
    constexpr std::uint32_t Changes = IN_CREATE | IN_ATTRIB | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO | IN_DELETE_SELF;
    if (inotify_add_watch(watch.Number(), folder.c_str(), Changes | IN_ONLYDIR) >= 0) return;
    // It comes with the first device.
    parent = inotify_add_watch(watch.Number(), folder.parent_path().c_str(), IN_CREATE | IN_MOVED_TO | IN_ONLYDIR);
}

void EventDevices::ServeWatch() {
    alignas(inotify_event) char buffer[4096];
    for (ssize_t size = 0; (size = read(watch.Number(), buffer, sizeof buffer)) > 0;) {
        for (ssize_t at = 0; at < size;) {
            const auto& told = *reinterpret_cast<const inotify_event*>(buffer + at);
            at += static_cast<ssize_t>(sizeof told + told.len);
            const std::string name = told.len > 0 ? told.name : "";
            if (told.mask & (IN_Q_OVERFLOW | IN_DELETE_SELF)) {
                Watch();
                LookAtFolder();
            } else if (told.wd == parent) {
                if (name != folder.filename()) continue;
                inotify_rm_watch(watch.Number(), std::exchange(parent, -1));
                Watch();
                LookAtFolder();
            } else {
                LookAt(name);
            }
        }
    }
}

void EventDevices::LookAtFolder() {
    std::set<int> numbers;
    std::error_code failed;
    for (const auto& each : std::filesystem::directory_iterator(folder, failed))
        if (const auto number = NumberOf(each.path().filename().native())) numbers.insert(*number);
    for (const auto& [number, device] : devices) numbers.insert(number);
    for (const int number : numbers) LookAt(std::string(Prefix) + std::to_string(number));
}

// Opening is the question whether it is there: another may have taken a node's name meanwhile.
void EventDevices::LookAt(const std::string& name) {
    const auto number = NumberOf(name);
    if (!number) return;
    const std::filesystem::path node = folder / name;
    const bool isThere = access(node.c_str(), F_OK) == 0;
    if (!isThere) {
        forbidden.erase(*number);
        Lose(*number);
    } else if (!devices.contains(*number)) {
        Open(*number, node);
    }
}

void EventDevices::Open(int number, const std::filesystem::path& node) {
    Device device;
    device.Node = FileDescriptor(open(node.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!device.Node && (errno == EACCES || errno == EPERM))
        forbidden[number] = node;
    else
        forbidden.erase(number);
    libevdev* reader = nullptr;
    if (!device.Node || libevdev_new_from_fd(device.Node.Number(), &reader) != 0) return;
    device.Reader.reset(reader);
    if (!isWanted(*reader)) return;
    device.Served = loop.WhenReadable(device.Node.Number(), [this, number] { Serve(number); });
    devices.insert_or_assign(number, std::move(device));
    Came(number, *reader);
}

void EventDevices::Serve(int number) {
    libevdev* const reader = devices.at(number).Reader.get();
    unsigned how = LIBEVDEV_READ_FLAG_NORMAL;
    for (int left = EventsInATurn; left > 0 || how == LIBEVDEV_READ_FLAG_SYNC; --left) {
        input_event event{};
        const int result = libevdev_next_event(reader, how, &event);
        if (result == -EAGAIN && how == LIBEVDEV_READ_FLAG_NORMAL) return;
        if (result == -EAGAIN) {
            how = LIBEVDEV_READ_FLAG_NORMAL;
        } else if (result < 0 && result != -EINTR) {
            return Lose(number);
        } else if (result == LIBEVDEV_READ_STATUS_SYNC && event.type == EV_SYN && event.code == SYN_DROPPED) {
            // Events were lost; what has changed since is told as if it happened now.
            how = LIBEVDEV_READ_FLAG_SYNC;
        } else if (result >= 0) {
            Happened(number, event);
        }
    }
}

void EventDevices::Lose(int number) {
    if (devices.erase(number) != 0) Gone(number);
}

}  // namespace orvelle::linux
