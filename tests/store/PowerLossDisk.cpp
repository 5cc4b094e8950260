#include "tests/store/PowerLossDisk.h"

#include <fcntl.h>

#include <utility>

namespace orvelle::store {

namespace {

namespace fs = std::filesystem;

// A name that leads to nothing is none.
PowerLossFolder::Entries With(PowerLossFolder::Entries entries, const std::string& name,
                              std::shared_ptr<PowerLossNode> node) {
    if (node)
        entries[name] = std::move(node);
    else
        entries.erase(name);
    return entries;
}

}  // namespace

PowerLossDisk::PowerLossDisk(fs::path folder) : root(std::move(folder)) {}

void PowerLossDisk::Play(const JournaledCall& call) {
    const auto opened = open.find(call.Head.File);
    PowerLossNode* node = opened == open.end() ? nullptr : opened->second.get();
    auto* file = dynamic_cast<PowerLossFile*>(node);
    switch (call.Head.What) {
        case DiskCall::Begin:
            open.clear();
            break;
        case DiskCall::Open:
            Open(call);
            break;
        case DiskCall::Close:
            open.erase(call.Head.File);
            break;
        case DiskCall::Write:
            if (file) file->Write(static_cast<std::size_t>(call.Head.Number), call.First);
            break;
        case DiskCall::Resize:
            if (file) file->Resize(static_cast<std::size_t>(call.Head.Number));
            break;
        case DiskCall::Sync:
            if (node) node->Sync();
            break;
        case DiskCall::MakeFolder:
            if (const Place place = Find(call.First); place.Folder)
                place.Folder->Change(With(place.Folder->Now(), place.Name, std::make_shared<PowerLossFolder>()));
            break;
        case DiskCall::Rename:
            Rename(call.First, call.Second);
            break;
        case DiskCall::Remove:
            if (const Place place = Find(call.First); place.Folder)
                place.Folder->Change(With(place.Folder->Now(), place.Name, nullptr));
            break;
    }
}

void PowerLossDisk::Open(const JournaledCall& call) {
    std::shared_ptr<PowerLossNode> node = NodeAt(call.First);
    const Place place = Find(call.First);
    if (!node && place.Folder && (call.Head.Number & O_CREAT) != 0) {
        node = std::make_shared<PowerLossFile>();
        place.Folder->Change(With(place.Folder->Now(), place.Name, node));
    }
    if (auto* file = dynamic_cast<PowerLossFile*>(node.get()); file && (call.Head.Number & O_TRUNC) != 0)
        file->Resize(0);
    open.erase(call.Head.File);
    if (node) open[call.Head.File] = std::move(node);
}

// One change, for both names are in one folder wherever the store renames.
void PowerLossDisk::Rename(const std::string& from, const std::string& to) {
    const Place old = Find(from);
    if (!old.Folder) return;
    std::shared_ptr<PowerLossNode> node = NodeAt(from);
    old.Folder->Change(With(With(old.Folder->Now(), old.Name, nullptr), Find(to).Name, std::move(node)));
}

DiskTree PowerLossDisk::Now() const {
    DiskTree tree;
    top->AddNow("", tree);
    return tree;
}

DiskTree PowerLossDisk::AfterLoss(std::mt19937& random) const {
    DiskTree tree;
    top->AddAfterLoss("", random, tree);
    return tree;
}

const std::string& PowerLossDisk::BytesOf(const std::string& name) const {
    static const std::string None;
    const auto* file = dynamic_cast<const PowerLossFile*>(NodeAt(root / name).get());
    return file ? file->Now() : None;
}

PowerLossDisk::Place PowerLossDisk::Find(const std::string& path) const {
    const fs::path inside = fs::path(path).lexically_relative(root);
    if (inside.empty() || *inside.begin() == ".." || inside == "." || path.ends_with("-shm")) return {};
    PowerLossFolder* folder = top.get();
    for (const fs::path& name : inside.parent_path()) {
        const auto entry = folder->Now().find(name);
        if (entry == folder->Now().end()) return {};
        folder = dynamic_cast<PowerLossFolder*>(entry->second.get());
        if (!folder) return {};
    }
    return {folder, inside.filename()};
}

std::shared_ptr<PowerLossNode> PowerLossDisk::NodeAt(const std::string& path) const {
    if (fs::path(path).lexically_relative(root) == ".") return top;
    const Place place = Find(path);
    if (!place.Folder) return nullptr;
    const auto entry = place.Folder->Now().find(place.Name);
    return entry == place.Folder->Now().end() ? nullptr : entry->second;
}

}  // namespace orvelle::store
