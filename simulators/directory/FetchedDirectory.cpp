#include "simulators/directory/FetchedDirectory.h"

#include <algorithm>
#include <cctype>
#include <optional>

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
    : loop(eventLoop), address(itsAddress), copy(copies, address), kept(address), fetch(loop), pause(FirstPause) {
    if (const std::optional<std::string> text = copy.Text(); text && kept.Take(*text)) kept.Date(copy.Age());
    fetch.Ended = [this](const FetchEnd& how) { Take(how); };
}

void FetchedDirectory::Fetch() {
    again.End();
    if (!fetch.IsRunning()) fetch.Start(copy.Request(kept.Now().Content != nullptr));
}

void FetchedDirectory::Remove() {
    fetch.Stop();
    again.End();
    copy.Remove();
}

void FetchedDirectory::Take(const FetchEnd& how) {
    std::string trouble = FetchTrouble(how);
    if (trouble.empty() && how.Answer == NotChanged) {
        kept.Confirm();
        copy.Confirm();
    } else if (trouble.empty()) {
        // A server that sends nothing makes no file.
        if (kept.Take(copy.Fetched().value_or("")))
            copy.TakeOver();
        else
            trouble = kept.Now().Told.Trouble;
    } else {
        kept.Miss(trouble);
    }
    if (trouble.empty()) {
        told.clear();
        pause = FirstPause;
    } else {
        copy.DropFetched();
        Suffer(trouble);
    }
    Changed();
}

void FetchedDirectory::Suffer(const std::string& trouble) {
    again = loop.After(pause, [this] { Fetch(); });
    pause = std::min(2 * pause, DirectoryAddresses::PeriodMilliseconds);
    if (told.insert(trouble).second) Told(SentenceOn(address, trouble, kept.Now().Told.IsCopy));
}

}  // namespace orvelle::directory
