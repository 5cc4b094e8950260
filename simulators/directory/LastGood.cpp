#include "simulators/directory/LastGood.h"

#include <algorithm>
#include <functional>
#include <string_view>
#include <utility>

namespace orvelle::directory {

namespace {

bool IsSameFault(const Fault& one, const Fault& other) {
    return one.Line == other.Line && one.Field == other.Field && one.Sentence == other.Sentence;
}

std::string NoDirectory(const ReadText& read) {
    if (read.Faults.empty()) return "It is no directory.";
    const Fault& first = read.Faults.front();
    const std::string field = first.Field.empty() ? "" : ", " + first.Field;
    return "It is no directory: line " + std::to_string(first.Line) + field + ": " + first.Sentence;
}

// Without its source.
DirectorySource::Found ReadFrom(std::string_view text) {
    ReadText read = ReadDirectory(text);
    DirectorySource::Found found;
    if (read.Content) {
        found.Told.Name = read.Content->Name;
        found.Told.Stations = read.Content->Stations.size();
        found.Content = std::make_shared<const Directory>(std::move(*read.Content));
    } else {
        found.Told.Trouble = NoDirectory(read);
    }
    found.Told.Faults = std::move(read.Faults);
    found.Told.FaultCount = read.FaultCount;
    return found;
}

}  // namespace

// One at a time, however often it changes.
bool LastGood::Take(std::string text) {
    if (reading) {
        next = std::move(text);
        return false;
    }
    const std::size_t itsDigest = std::hash<std::string>()(text);
    if (found.Content && itsDigest == digest) {
        Confirm();
        return true;
    }
    struct Shared {
        const std::string Text;
        std::optional<DirectorySource::Found> Read;
    };
    const auto shared = std::make_shared<Shared>(Shared{std::move(text), std::nullopt});
    reading = std::make_unique<BackgroundWork>(
        loop, [shared] { shared->Read = ReadFrom(shared->Text); },
        // Where no thread could be had it is read here.
        [this, shared, itsDigest] { Finish(shared->Read ? *shared->Read : ReadFrom(shared->Text), itsDigest); });
    return false;
}

void LastGood::Finish(const DirectorySource::Found& read, std::size_t itsDigest) {
    reading.reset();
    if (next) {
        if (Take(*std::exchange(next, std::nullopt))) Taken(true);
        return;
    }
    if (read.Content) {
        found.Content = read.Content;
        good = read.Told;
        good.Source = found.Told.Source;
        digest = itsDigest;
        Confirm();
    } else {
        Miss(read.Told.Trouble);
        found.Told.Faults = read.Told.Faults;
        found.Told.FaultCount = read.Told.FaultCount;
    }
    Taken(read.Content != nullptr);
}

void LastGood::Confirm() {
    found.Told = good;
    Date(0);
}

void LastGood::Miss(const std::string& sentence) {
    reading.reset();
    next.reset();
    found.Told.IsCopy = found.Content != nullptr;
    found.Told.Trouble = sentence;
}

void LastGood::Date(long long seconds) { found.ReadAt = SecondsSinceBoot() - seconds; }

bool IsSame(const DirectorySource::Found& one, const DirectorySource::Found& other) {
    const DirectoryTold& a = one.Told;
    const DirectoryTold& b = other.Told;
    return one.Content == other.Content && a.Source == b.Source && a.Name == b.Name && a.Stations == b.Stations &&
           a.IsCopy == b.IsCopy && a.Trouble == b.Trouble && a.FaultCount == b.FaultCount &&
           std::ranges::equal(a.Faults, b.Faults, IsSameFault);
}

}  // namespace orvelle::directory
