#include "adapters/linux/FileWatch.h"

#include <utility>

namespace orvelle::linux {

namespace {

namespace fs = std::filesystem;

bool IsSame(const struct stat& one, const struct stat& other) {
    const auto isSameTime = [](const timespec& a, const timespec& b) {
        return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
    };
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino && one.st_size == other.st_size &&
           isSameTime(one.st_mtim, other.st_mtim) && isSameTime(one.st_ctim, other.st_ctim);
}

}  // namespace

FileWatch::FileWatch(EventLoop& loop, const fs::path& watchedFile)
    : file(fs::absolute(watchedFile).lexically_normal()), folder(loop, file.parent_path()), state(State()) {
    // Told even if it looks as before: the time of a file has its steps, too.
    folder.Changed = [this](const std::set<std::string>& names) {
        if (!names.contains(file.filename())) return;
        state = State();
        Changed();
    };
    folder.Renewed = [this] { Compare(); };
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

}  // namespace orvelle::linux
