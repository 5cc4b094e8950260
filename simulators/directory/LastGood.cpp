#include "simulators/directory/LastGood.h"

#include <algorithm>
#include <functional>
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

}  // namespace

bool LastGood::Take(std::string_view text) {
    const std::size_t newDigest = std::hash<std::string_view>()(text);
    if (found.Content && newDigest == digest) {
        Confirm();
        return true;
    }
    ReadText read = ReadDirectory(text);
    if (!read.Content) {
        Miss(NoDirectory(read));
        found.Told.Faults = std::move(read.Faults);
        found.Told.FaultCount = read.FaultCount;
        return false;
    }
    digest = newDigest;
    good.Name = read.Content->Name;
    good.Stations = read.Content->Stations.size();
    good.Faults = std::move(read.Faults);
    good.FaultCount = read.FaultCount;
    found.Content = std::make_shared<const Directory>(std::move(*read.Content));
    Confirm();
    return true;
}

void LastGood::Confirm() {
    found.Told = good;
    Date(0);
}

void LastGood::Miss(const std::string& sentence) {
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
