#include "simulators/directory/FetchedDirectory.h"

#include <algorithm>
#include <cctype>
#include <optional>
#include <utility>

#include "simulators/directory/DirectoryAddresses.h"

namespace orvelle::directory {

namespace {

constexpr Long FirstPause = 15'000;  // doubled after each trouble
constexpr int NotChanged = 304;

std::string SentenceOn(const std::string& address, std::string trouble, bool isCopy) {
    trouble.front() = static_cast<char>(std::tolower(static_cast<unsigned char>(trouble.front())));
    if (isCopy) trouble.replace(trouble.size() - 1, 1, "; its last good copy counts.");
    return "The directory at " + address + " can't be had: " + trouble;
}

}  // namespace

FetchedDirectory::FetchedDirectory(EventLoop& eventLoop, const std::filesystem::path& copies,
                                   const std::string& itsAddress)
    : loop(eventLoop), address(itsAddress), copy(copies, address), kept(loop, address), fetch(loop), pause(FirstPause) {
    fetch.Ended = [this](const FetchEnd& how) { Take(how); };
    kept.Taken = [this](bool isDirectory) {
        if (isDirectory) kept.Date(copy.Age());
        TellChange();
    };
    if (std::optional<std::string> text = copy.Text()) kept.Take(std::move(*text));
}

// Whether the copy is one, so that its ETag counts, is known when it was read; and what was fetched lies there until
// then.
void FetchedDirectory::Fetch() {
    again.End();
    isAsked = kept.IsReading();
    if (!isAsked && !fetch.IsRunning()) fetch.Start(copy.Request(kept.Now().Content != nullptr));
}

void FetchedDirectory::Remove() {
    fetch.Stop();
    again.End();
    copy.Remove();
}

void FetchedDirectory::Take(const FetchEnd& how) {
    const std::string trouble = FetchTrouble(how);
    if (!trouble.empty()) {
        kept.Miss(trouble);
        Finish(trouble);
    } else if (how.Answer == NotChanged) {
        kept.Confirm();
        copy.Confirm();
        Finish("");
    } else {
        kept.Taken = [this](bool isDirectory) { TakeRead(isDirectory); };
        // A server that sends nothing makes no file.
        if (kept.Take(copy.Fetched().value_or(""))) TakeRead(true);
    }
}

void FetchedDirectory::TakeRead(bool isDirectory) {
    if (isDirectory) copy.TakeOver();
    Finish(isDirectory ? "" : kept.Now().Told.Trouble);
}

void FetchedDirectory::Finish(const std::string& trouble) {
    if (trouble.empty()) {
        told.clear();
        pause = FirstPause;
    } else {
        copy.DropFetched();
        again = loop.After(pause, [this] { Fetch(); });
        pause = std::min(2 * pause, DirectoryAddresses::PeriodMilliseconds);
        if (told.insert(trouble).second) Told(SentenceOn(address, trouble, kept.Now().Told.IsCopy));
    }
    TellChange();
}

void FetchedDirectory::TellChange() {
    Changed();
    if (isAsked) Fetch();
}

}  // namespace orvelle::directory
