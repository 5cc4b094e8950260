#include "adapters/linux/FolderWatch.h"

#include <sys/inotify.h>

#include <array>

namespace orvelle::linux {

FolderWatch::FolderWatch(EventLoop& loop, const std::filesystem::path& folder)
    : watch(inotify_init1(IN_CLOEXEC | IN_NONBLOCK)) {
    if (!watch) return;
    inotify_add_watch(watch.Number(), folder.c_str(), IN_MOVED_TO | IN_CLOSE_WRITE | IN_DELETE);
    readable = loop.WhenReadable(watch.Number(), [this] {
        std::array<char, 4096> events{};
        while (read(watch.Number(), events.data(), events.size()) > 0) continue;
        Changed();
    });
}

}  // namespace orvelle::linux
