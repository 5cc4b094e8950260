// The last good text of an address, with the ETag that its server gave it, in the folder directory-copies; and beside
// them where the next ones come to while they are fetched. A copy that was torn is no directory, so it need not be
// brought to the disk; its ETag never outlives it. For the addresses.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "simulators/directory/HttpsFetch.h"

namespace orvelle::directory {

class DirectoryCopy {
public:
    DirectoryCopy(const std::filesystem::path& folder, std::string address);

    // Nothing where there is none that can be read.
    std::optional<std::string> Text() const;
    long long Age() const;  // seconds since it was fetched or confirmed, by the time of day; never negative

    // Makes the folder. `hasText`: whether the copy's ETag counts.
    FetchRequest Request(bool hasText) const;
    std::optional<std::string> Fetched() const;  // what came
    void TakeOver() const;                       // it is the copy from now on
    void Confirm() const;
    void DropFetched() const;
    void Remove() const;

private:
    const std::string address;
    const std::filesystem::path text, tag, nextText, nextTag;
};

}  // namespace orvelle::directory
