// The applications that the desktop knows, by their entries in the menu's folders, and which of them opens what: the
// user's choices (mimeapps.list) and what the entries offer, by the rules of freedesktop.org. For whoever asks which
// program is installed for a kind of URL. Reads the files at each question, which comes at the start and by a button.
#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "adapters/linux/BaseFolders.h"
#include "adapters/linux/KeyFile.h"

namespace orvelle::linux {

class DesktopApplications {
public:
    explicit DesktopApplications(BaseFolders ofUser) : folders(std::move(ofUser)) {}

    // The file of the application's entry, "" if there is none. `id` is an entry's name, with "-" for its folders.
    std::filesystem::path EntryOf(const std::string& id) const;
    // The entries of those that open the type, the one that is to be taken first. `type` is a MIME type; of URLs with a
    // scheme "x-scheme-handler/SCHEME".
    std::vector<std::filesystem::path> ThatOpen(const std::string& type) const;

private:
    struct Lists;

    std::vector<Lists> AllLists() const;
    std::vector<std::string> ThatOffer(const std::string& type, const std::filesystem::path& applications) const;

    BaseFolders folders;
};

}  // namespace orvelle::linux
