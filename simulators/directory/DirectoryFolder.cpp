#include "simulators/directory/DirectoryFolder.h"

#include <system_error>
#include <utility>

#include "adapters/shared/PrivateFile.h"

namespace orvelle::directory {

namespace {

namespace fs = std::filesystem;

constexpr Long SettleMilliseconds = 100;  // whoever writes a file may have begun just now

bool IsDirectoryName(const std::string& name) { return name.ends_with(".json") && !name.starts_with('.'); }

}  // namespace

DirectoryFolder::DirectoryFolder(EventLoop& eventLoop, fs::path itsFolder)
    : loop(eventLoop), folder(std::move(itsFolder)), watch(eventLoop, folder) {
    watch.Changed = [this](const std::set<std::string>& names) {
        touched.insert(names.begin(), names.end());
        settled = loop.After(SettleMilliseconds, [this] { ReadTouched(); });
    };
    watch.Renewed = [this] {
        ReadAll();
        TellChange();
    };
    ReadAll();
    Gather();
}

void DirectoryFolder::ReadAll() {
    std::set<std::string> names;
    for (const auto& [name, file] : files) names.insert(name);
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error))
        names.insert(entry->path().filename());
    const bool isMissing = error == std::errc::no_such_file_or_directory;
    trouble = error && !isMissing ? "The folder can't be read: " + error.message() + "." : "";
    for (const std::string& name : names) Read(name);
}

void DirectoryFolder::Read(const std::string& name) {
    if (!IsDirectoryName(name)) return;
    std::error_code error;
    const fs::path file = folder / name;
    if (!fs::exists(fs::symlink_status(file, error))) {
        files.erase(name);
        return;
    }
    const auto [place, isNew] = files.try_emplace(name, loop, name);
    LastGood& kept = place->second;
    if (isNew) kept.Taken = [this](bool) { TellChange(); };
    const fs::path target = fs::canonical(file, error);
    if (error) return kept.Miss("It is a link that leads nowhere: " + error.message() + ".");
    PrivateText text = ReadPrivateFile(target, LongestDirectory);
    if (text.Text)
        kept.Take(std::move(*text.Text));
    else
        kept.Miss("It can't be read: " + (text.Reason.empty() ? "it is there no more" : text.Reason) + ".");
}

void DirectoryFolder::ReadTouched() {
    for (const std::string& name : std::exchange(touched, {})) Read(name);
    TellChange();
}

void DirectoryFolder::TellChange() {
    Gather();
    Changed();
}

void DirectoryFolder::Gather() {
    found.clear();
    for (const auto& [name, kept] : files) {
        if (found.size() == MostFiles) break;
        found.push_back(kept.Now());
    }
    const std::string all = std::to_string(files.size());
    const std::string sentence =
        files.size() > MostFiles ? "Only the first " + std::to_string(MostFiles) + " of " + all + " files are taken."
                                 : trouble;
    if (sentence.empty()) return;
    found.emplace_back().Told.Source = folder.string();
    found.back().Told.Trouble = sentence;
}

}  // namespace orvelle::directory
