#include "adapters/store/StoreLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace orvelle::store {

namespace {

struct Noted {
    StoreLock::Mark Last{};
    Check Sum = 0;
};

Check SumOf(const StoreLock::Mark& mark) { return NumbersCheck({mark.Store, mark.Change}); }

}  // namespace

StoreLock::StoreLock(const std::filesystem::path& storeFile) : path(std::filesystem::path(storeFile) += ".lock") {}

StoreLock::Outcome StoreLock::Take() {
    constexpr int Flags = O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    FileDescriptor opened(open(path.c_str(), O_RDWR | Flags, S_IRUSR | S_IWUSR));
    struct stat status;
    if (!opened || fstat(opened.Number(), &status) != 0 || !S_ISREG(status.st_mode)) return Outcome::Unavailable;
    if (flock(opened.Number(), LOCK_EX | LOCK_NB) != 0)
        return errno == EWOULDBLOCK ? Outcome::HeldByAnother : Outcome::Unavailable;
    file = std::move(opened);
    return Outcome::Taken;
}

// While the held file has its name, it can't be locked once more.
void StoreLock::TakeAgain() {
    FileDescriptor held = std::move(file);
    if (Take() != Outcome::Taken) file = std::move(held);
}

std::optional<StoreLock::Mark> StoreLock::LastNoted() const {
    Noted noted;
    if (!file || pread(file.Number(), &noted, sizeof noted, 0) != sizeof noted || noted.Sum != SumOf(noted.Last))
        return std::nullopt;
    return noted.Last;
}

// A note that can't be made leaves the one before, which is behind the store and so accuses nobody.
void StoreLock::Note(const StoreState& state) const {
    if (!file) return;
    Noted noted{.Last = {state.Store, state.Change}};
    noted.Sum = SumOf(noted.Last);
    [[maybe_unused]] const ssize_t written = pwrite(file.Number(), &noted, sizeof noted, 0);
}

void StoreLock::NoteStore(const StoreState& state) const {
    const std::optional<Mark> last = LastNoted();
    Note(state);
    if (file && (!last || last->Store != state.Store)) fsync(file.Number());
}

}  // namespace orvelle::store
