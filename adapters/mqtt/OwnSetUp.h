// The set-up that this computer made, as it is kept below the data folder: the keys of its computers, and what its
// broker is told by files: configuration, keys, access list. This computer is c01 in it, and belongs to it by a
// setup.json that is written here. All files are the user's alone. Called by the simulator's program and by its
// commands, which change the keys beside a running one; the broker and the running program take the change up.
#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>

#include "adapters/mqtt/JoinCode.h"
#include "adapters/mqtt/SetUpFile.h"

namespace orvelle::mqtt {

using ComputerKeys = std::map<int, Key>;  // by the number of the identity

class OwnSetUp {
public:
    explicit OwnSetUp(std::filesystem::path dataFolder) : folder(std::move(dataFolder)) {}

    // What can be read of it now; a damaged file of keys is left as it is.
    struct Found {
        std::optional<ComputerKeys> Keys;  // none where this computer has made no set-up
        std::string Sentence;              // why there are keys and none can be read; "" where all is well
    };
    Found Read() const;

    // Makes it if there is none, and all of its files anew but for the keys. "" for success, else a sentence.
    std::string Make(const std::string& name, int port) const;
    // Adds the next free computer; its code, or nothing and a sentence: the set-up is full, or can't be written.
    std::optional<JoinCode> Add(std::string& sentence) const;
    std::string Remove(int identity) const;  // "" for success, else a sentence

    std::filesystem::path SetUpFile() const { return folder / "setup.json"; }
    std::filesystem::path KeysFile() const { return folder / "broker" / "keys"; }
    std::filesystem::path Configuration() const { return folder / "broker" / "mosquitto.conf"; }
    std::filesystem::path LockFolder() const { return folder / "broker"; }

private:
    std::string WriteKeys(const ComputerKeys& keys) const;

    std::filesystem::path folder;
};

}  // namespace orvelle::mqtt
