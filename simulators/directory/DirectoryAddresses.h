// Directories fetched by HTTPS from the addresses that the user has entered (directory-addresses.json in the data
// folder): at the start, every 15 minutes, when asked, and after a trouble sooner, at first after 15 s. What was
// fetched is kept with its ETag in the folder directory-copies, and counts while its address can't be had; each trouble
// is told once, until it is over. The fetching is curl's, as a child: HttpsFetch.h.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "platform/EventLoop.h"
#include "simulators/directory/Directories.h"

namespace orvelle::directory {

class DirectoryAddresses : public DirectorySource {
public:
    static constexpr Long PeriodMilliseconds = 15 * 60 * 1000;
    static constexpr std::size_t MostAddresses = 20;

    // `data` is the data folder. An address is fetched once its copy was read.
    DirectoryAddresses(EventLoop& eventLoop, std::filesystem::path data);
    ~DirectoryAddresses() override;

    const std::vector<Found>& Directories() const override;
    std::vector<std::string> Addresses() const;
    // Keeps them in this order, and fetches new ones at once. "" for success, else one sentence: an address that is
    // none ("https://" is put before a bare one, "http://" is refused), or a file that can't be written; then nothing
    // has changed. One that is there twice counts once.
    std::string Enter(const std::vector<std::string>& addresses);
    void FetchNow();

    Event<const std::string&> Told;  // a sentence for the user, once for each trouble

private:
    struct Parts;

    const std::unique_ptr<Parts> parts;
};

}  // namespace orvelle::directory
