#include "adapters/store/StoreWriter.h"

#include <algorithm>
#include <exception>
#include <utility>
#include <vector>

#include "adapters/store/StoreWords.h"

namespace orvelle::store {

namespace {

// In milliseconds
constexpr Long NoPatience = 0;
constexpr Long LastPatience = 1000;
constexpr Long FirstPause = 250;
constexpr Long LongestPause = 4000;
constexpr Long PauseBeforeCopy = 2000;  // behind the first windows

}  // namespace

StoreWriter::StoreWriter(EventLoop& eventLoop, StoreMemory& storeMemory, std::unique_ptr<StoreFile> storeFile,
                         Start start, Notice tellUser)
    : loop(eventLoop), memory(storeMemory), file(std::move(storeFile)), tell(std::move(tellUser)), pause(FirstPause) {
    if (file && start == Start::Clean) CopyLater(PauseBeforeCopy);
}

void StoreWriter::Started() {
    if (file) file->NoteStart();
}

// A try that is due comes by itself; every handler in between would only meet the same lock.
void StoreWriter::HandlerEnded() {
    if (!file || isWaiting || Write(NoPatience)) return;
    pause = FirstPause;
    TryLater();
}

void StoreWriter::TryLater() {
    isWaiting = true;
    nextTry = loop.After(pause, [this] {
        isWaiting = false;
        pause = std::min(2 * pause, LongestPause);
        if (!Write(NoPatience)) TryLater();
    });
}

bool StoreWriter::Write(Long patienceMilliseconds) {
    const StoredChanges changes = memory.Changes();
    StoreFile::Result result;
    if (!changes.empty()) result = file->Write(changes, memory.Values(), patienceMilliseconds);
    switch (result.What) {
        case StoreFile::Outcome::NotNow:
            if (std::exchange(failure, result.Reason).empty()) TellOfFailure();
            return false;
        case StoreFile::Outcome::Replaced:
            tell(NamedFile(file->Path()) +
                 " was replaced by another one while the panel runs, which is left as it is. From now on " +
                 ChangesAreLost);
            copying.End();
            file.reset();
            return true;
        case StoreFile::Outcome::WrittenAnew:
            tell(NamedFile(file->Path()) + " was deleted while the panel runs, and was written anew.");
            break;
        case StoreFile::Outcome::Written:
            break;
    }
    memory.Written();
    failure.clear();
    return true;
}

void StoreWriter::TellOfFailure() {
    tell(NamedFile(file->Path()) + " could not be written (" + failure +
         "). Changes are kept in memory and written as soon as that is possible again.");
}

std::string StoreWriter::Close() {
    nextTry.End();
    copying.End();
    isWaiting = false;
    if (!file) return "";
    failure = "not tried";  // what follows is told by the caller
    std::string sentence;
    if (!Write(LastPatience)) {
        std::vector<std::string> names;
        for (const StoredChange& change : memory.Changes()) names.push_back(NamedValue(*change.Place, *change.Name));
        sentence = NamedFile(file->Path()) + " could not be written (" + failure + "). Lost are the changes of " +
                   Listed(names) + ".";
    }
    file.reset();
    return sentence;
}

void StoreWriter::CopyLater(Long milliseconds) {
    copying = loop.After(milliseconds, [this] {
        try {
            if (file && file->CopyOn()) CopyLater(0);
        } catch (const std::exception& error) {
            tell(NamedFile(file->Path()) + " is whole, but its copy could not be made (" + error.what() + ").");
        }
    });
}

}  // namespace orvelle::store
