#include "adapters/shared/FolderWatch.h"

#include <sys/inotify.h>

#include <array>
#include <cstring>

namespace orvelle {

namespace {

namespace fs = std::filesystem;

constexpr Long LookMilliseconds = 1000;  // between two looks without a watch
// Not each writing: files of the folder may be written all the time, and a file is of use when it is whole.
constexpr std::uint32_t OfTheFiles = IN_CREATE | IN_CLOSE_WRITE | IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE | IN_ATTRIB;
constexpr std::uint32_t OfAFolderAbove = IN_CREATE | IN_MOVED_TO | IN_ATTRIB;
constexpr std::uint32_t OfTheWatch = IN_DELETE_SELF | IN_MOVE_SELF | IN_UNMOUNT | IN_IGNORED | IN_Q_OVERFLOW;

}  // namespace

FolderWatch::FolderWatch(EventLoop& eventLoop, const fs::path& watchedFolder)
    : loop(eventLoop),
      folder(fs::absolute(watchedFolder).lexically_normal()),
      events(inotify_init1(IN_CLOEXEC | IN_NONBLOCK)) {
    if (events) readable = loop.WhenReadable(events.Number(), [this] { Take(); });
    Look();
}

void FolderWatch::Look() {
    later.End();
    // A folder that is made between two steps is not awaited any more: then again.
    while (!LookFrom())
        ;
    if (watched >= 0) return;
    later = loop.After(LookMilliseconds, [this] {
        Look();
        Renewed();
    });
}

// False where what would be awaited has come meanwhile.
bool FolderWatch::LookFrom() {
    const auto watch = [this](const fs::path& path, std::uint32_t what) {
        return inotify_add_watch(events.Number(), path.c_str(), what | IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR);
    };
    const int before = watched;
    fs::path path = folder;
    watched = watch(path, OfTheFiles);
    isThere = watched >= 0;
    while (watched < 0 && path.has_relative_path()) {
        awaited = path.filename();
        path = path.parent_path();
        watched = watch(path, OfAFolderAbove);
    }
    if (before >= 0 && before != watched) inotify_rm_watch(events.Number(), before);
    if (isThere || watched < 0) return true;
    const int come = watch(path / awaited, OfAFolderAbove);
    if (come >= 0) inotify_rm_watch(events.Number(), come);
    return come < 0;
}

void FolderWatch::Take() {
    const Woken woken = TakeEvents();
    if (woken.ByFolders) Look();
    if (!woken.Names.empty()) Changed(woken.Names);
    if (woken.ByFolders) Renewed();
}

FolderWatch::Woken FolderWatch::TakeEvents() {
    Woken woken;
    alignas(inotify_event) std::array<char, 16384> bytes{};
    for (;;) {
        const ssize_t count = read(events.Number(), bytes.data(), bytes.size());
        if (count <= 0) return woken;
        for (std::size_t place = 0; place < static_cast<std::size_t>(count);) {
            inotify_event event{};
            std::memcpy(&event, bytes.data() + place, sizeof event);
            const char* const name = bytes.data() + place + sizeof event;
            place += sizeof event + event.len;
            if ((event.mask & IN_Q_OVERFLOW) == 0 && event.wd != watched) continue;
            if ((event.mask & OfTheWatch) != 0)
                woken.ByFolders = true;
            else if (event.len > 0 && isThere)
                woken.Names.insert(name);
            else if (event.len > 0 && awaited == name)
                woken.ByFolders = true;
        }
    }
}

}  // namespace orvelle
