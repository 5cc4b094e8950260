#include "adapters/linux/FileWatch.h"

#include <sys/inotify.h>

#include <array>
#include <cstring>
#include <utility>

namespace orvelle::linux {

namespace {

namespace fs = std::filesystem;

constexpr Long LookMilliseconds = 1000;  // between two looks without a watch
// Not each writing: other files of the folder may be written all the time, and a file is of use when it is whole.
constexpr std::uint32_t OfTheFile = IN_CREATE | IN_CLOSE_WRITE | IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE | IN_ATTRIB;
constexpr std::uint32_t OfAFolderAbove = IN_CREATE | IN_MOVED_TO | IN_ATTRIB;
constexpr std::uint32_t OfTheWatch = IN_DELETE_SELF | IN_MOVE_SELF | IN_UNMOUNT | IN_IGNORED | IN_Q_OVERFLOW;

bool IsSame(const struct stat& one, const struct stat& other) {
    const auto isSameTime = [](const timespec& a, const timespec& b) {
        return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
    };
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino && one.st_size == other.st_size &&
           isSameTime(one.st_mtim, other.st_mtim) && isSameTime(one.st_ctim, other.st_ctim);
}

}  // namespace

FileWatch::FileWatch(EventLoop& eventLoop, const fs::path& watchedFile)
    : loop(eventLoop),
      file(fs::absolute(watchedFile).lexically_normal()),
      events(inotify_init1(IN_CLOEXEC | IN_NONBLOCK)) {
    if (events) readable = loop.WhenReadable(events.Number(), [this] { Take(); });
    Look();
    state = State();
}

// Watches the file's folder, or the nearest one above it.
void FileWatch::Look() {
    later.End();
    // A folder that is made between two steps is not awaited any more: then again.
    while (!LookFrom(file.parent_path()))
        ;
    if (watched < 0) LookLater();
}

// False where what would be awaited has come meanwhile.
bool FileWatch::LookFrom(const fs::path& folder) {
    const auto watch = [this](const fs::path& path, std::uint32_t what) {
        return inotify_add_watch(events.Number(), path.c_str(), what | IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR);
    };
    const int before = watched;
    fs::path path = folder;
    awaited = file.filename();
    watched = watch(path, OfTheFile);
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

void FileWatch::Take() {
    const Woken woken = TakeEvents();
    if (woken.ByFolders) Look();
    if (!woken.ByFile) return woken.ByFolders ? Compare() : void();
    // Told even if it looks as before: the time of a file has its steps, too.
    state = State();
    Changed();
}

FileWatch::Woken FileWatch::TakeEvents() {
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
            else if (event.len > 0 && awaited == name)
                (isThere ? woken.ByFile : woken.ByFolders) = true;
        }
    }
}

// All zero where there is none.
struct stat FileWatch::State() const {
    struct stat now {};
    if (lstat(file.c_str(), &now) != 0) now = {};
    return now;
}

void FileWatch::Compare() {
    const struct stat now = State();
    if (IsSame(now, std::exchange(state, now))) return;
    Changed();
}

void FileWatch::LookLater() {
    later = loop.After(LookMilliseconds, [this] {
        Look();
        Compare();
    });
}

}  // namespace orvelle::linux
