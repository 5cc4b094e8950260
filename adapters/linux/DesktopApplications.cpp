#include "adapters/linux/DesktopApplications.h"

#include <algorithm>
#include <system_error>

namespace orvelle::linux {

namespace {

namespace fs = std::filesystem;

constexpr const char* Cache = "mimeinfo.cache";

bool Exists(const fs::path& file) {
    std::error_code error;
    return fs::exists(file, error);
}

bool Contains(const std::vector<std::string>& list, const std::string& text) {
    return std::find(list.begin(), list.end(), text) != list.end();
}

std::string IdOf(const fs::path& entry, const fs::path& applications) {
    std::string id = entry.lexically_relative(applications).string();
    std::replace(id.begin(), id.end(), '/', '-');
    return id;
}

}  // namespace

// What one folder says: its lists of choices, the desktop's own before the common one, and its entries, if it is one of
// the menu's.
struct DesktopApplications::Lists {
    std::vector<KeyFile> OfDesktops;
    KeyFile Common;
    fs::path Applications;
};

std::vector<DesktopApplications::Lists> DesktopApplications::AllLists() const {
    std::vector<Lists> all;
    const auto add = [&](const fs::path& folder, const fs::path& applications) {
        Lists lists{{}, KeyFile::Read(folder / "mimeapps.list"), applications};
        for (const std::string& desktop : folders.Desktops)
            lists.OfDesktops.push_back(KeyFile::Read(folder / (desktop + "-mimeapps.list")));
        all.push_back(std::move(lists));
    };
    for (const fs::path& folder : folders.Configuration) add(folder, "");
    for (const fs::path& folder : folders.Data) add(folder / "applications", folder / "applications");
    return all;
}

fs::path DesktopApplications::EntryOf(const std::string& id) const {
    if (id.find('/') != std::string::npos) return "";
    for (const fs::path& folder : folders.Data) {
        std::string name = id;
        while (true) {
            if (fs::path entry = folder / "applications" / name; Exists(entry)) return entry;
            const std::size_t next = name.find('-');
            if (next == std::string::npos) break;
            name[next] = '/';
        }
    }
    return "";
}

// The user's own folder is small, and what is put there by hand enters no cache.
std::vector<std::string> DesktopApplications::ThatOffer(const std::string& type, const fs::path& applications) const {
    if (applications != folders.Data.front() / "applications" && Exists(applications / Cache))
        return KeyFile::Read(applications / Cache).List("MIME Cache", type);
    std::vector<std::string> ids;
    std::error_code error;
    for (fs::recursive_directory_iterator entry(applications, error), end; !error && entry != end;
         entry.increment(error)) {
        if (entry->path().extension() != ".desktop") continue;
        if (Contains(KeyFile::Read(entry->path()).List(DesktopEntryGroup, "MimeType"), type))
            ids.push_back(IdOf(entry->path(), applications));
    }
    std::sort(ids.begin(), ids.end());
    return ids;
}

std::vector<fs::path> DesktopApplications::ThatOpen(const std::string& type) const {
    std::vector<std::string> ids;
    const auto add = [&](const std::string& id) {
        if (!Contains(ids, id)) ids.push_back(id);
    };
    const std::vector<Lists> all = AllLists();
    for (const Lists& lists : all) {
        for (const KeyFile& ofDesktop : lists.OfDesktops)
            for (const std::string& id : ofDesktop.List("Default Applications", type)) add(id);
        for (const std::string& id : lists.Common.List("Default Applications", type)) add(id);
    }
    // What one folder takes away counts for those after it, too.
    std::set<std::string> removed;
    for (const Lists& lists : all) {
        for (const std::string& id : lists.Common.List("Added Associations", type))
            if (!removed.contains(id)) add(id);
        for (const std::string& id : lists.Common.List("Removed Associations", type)) removed.insert(id);
        if (lists.Applications.empty()) continue;
        for (const std::string& id : ThatOffer(type, lists.Applications))
            if (!removed.contains(id)) add(id);
    }
    std::vector<fs::path> entries;
    for (const std::string& id : ids)
        if (fs::path entry = EntryOf(id); !entry.empty()) entries.push_back(std::move(entry));
    return entries;
}

}  // namespace orvelle::linux
