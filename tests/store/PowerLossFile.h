// A file, or a folder, on a disk that loses its power: what the program sees, and what of it was synced. Owned by
// PowerLossFolder and by who has it open; played by PowerLossDisk. Chance decides what is found after the loss.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace orvelle::store {

// By path below the disk's folder; none is a folder.
using DiskTree = std::map<std::filesystem::path, std::optional<std::string>>;

class PowerLossNode {
public:
    PowerLossNode() = default;
    PowerLossNode(const PowerLossNode&) = delete;
    PowerLossNode& operator=(const PowerLossNode&) = delete;
    virtual ~PowerLossNode() = default;

    virtual void Sync() = 0;
    virtual void AddNow(const std::filesystem::path& path, DiskTree& tree) const = 0;
    virtual void AddAfterLoss(const std::filesystem::path& path, std::mt19937& random, DiskTree& tree) const = 0;
};

class PowerLossFile : public PowerLossNode {
public:
    void Write(std::size_t offset, const std::string& bytes);
    void Resize(std::size_t size);
    const std::string& Now() const { return now; }

    void Sync() override;
    void AddNow(const std::filesystem::path& path, DiskTree& tree) const override { tree[path] = now; }
    void AddAfterLoss(const std::filesystem::path& path, std::mt19937& random, DiskTree& tree) const override;

private:
    struct Change {
        std::size_t Offset;
        std::string Bytes;  // none where the size alone was changed
        std::size_t Size;   // the file's, afterwards
    };

    std::string AfterLoss(std::mt19937& random) const;

    std::string now;
    std::string synced;
    std::vector<Change> unsynced;
};

// How many of so many changes, which reach the disk in their order, have reached it: often none or all.
std::size_t Reached(std::size_t count, std::mt19937& random);

}  // namespace orvelle::store
