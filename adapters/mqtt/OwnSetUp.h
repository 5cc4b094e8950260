// The set-up that this computer has made, in a folder of its own: the set-up's name, its broker's port and the keys of
// all its computers, c01 being this one, kept in one file; from it the broker's own files are written. Called by the
// simulator's program, and by each of its errands beside it; several may work at a time. Nothing here throws; a
// sentence for the user says what went wrong, and then nothing was changed. A file that can't be read is left alone.
#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>

#include "adapters/mqtt/SetUpFile.h"

namespace orvelle::mqtt {

struct OwnSetting {
    std::string Name;  // of the set-up
    int Port = UsualPort;
    std::map<int, Key> Keys;  // by the number of the identity
    bool operator==(const OwnSetting&) const = default;
};

// Whether a set-up can be called so: 1 to 63 bytes of UTF-8, as the network can tell it, not all of them blank, and no
// control characters.
bool IsSetUpName(std::string_view text);

std::optional<OwnSetting> ReadOwnSetting(std::string_view text);
std::string WriteOwnSetting(const OwnSetting& setting);

class OwnSetUp {
public:
    // `data` is the folder of the user's data, which also holds the setup.json of this computer's panel.
    explicit OwnSetUp(const std::filesystem::path& data);

    struct Outcome {
        std::optional<OwnSetting> Setting;  // as it is kept now
        std::string Sentence;               // why there is none
    };

    Outcome Read() const;
    // Makes the set-up where there is none, under that name, or under a usual one where that can't be a name; `port` 0
    // leaves the port as it is, or takes the usual one.
    Outcome ReadOrMake(const std::string& firstName, int port) const;
    // Also for the panel of this computer; "" for success.
    std::string Rename(const std::string& name) const;

    struct Added {
        std::optional<JoinCode> Code;
        std::string Sentence;
    };
    // A key for the lowest number that is free.
    Added Add() const;
    // Takes the computer's key away; "" for success.
    std::string Remove(int identity) const;

    // A file of another set-up, or one that can't be read: stays as it is, or the computer leaves that set-up.
    enum class OtherSetUp { Stays, IsLeft };
    // Lets the panel of this computer belong to the set-up, whose broker is there; "" for success.
    std::string JoinThisComputer(const OwnSetting& setting, const std::string& host, int port,
                                 OtherSetUp other = OtherSetUp::Stays) const;
    // What the panel of this computer knows, if it belongs to this set-up.
    std::optional<SetUpSetting> OfThisComputer(const OwnSetting& setting) const;
    // What it knows if it belongs to another one, which this computer has joined.
    std::optional<SetUpSetting> JoinedElsewhere() const;

    // Makes the folder of the set-up, its user's alone; "" for success.
    std::string MakeFolder() const;
    const std::filesystem::path& Folder() const { return folder; }
    std::filesystem::path File() const { return folder / "set-up.json"; }
    const std::filesystem::path& PanelFile() const { return panelFile; }
    std::filesystem::path ConfigurationFile() const { return folder / "mosquitto.conf"; }

private:
    std::string Keep(const OwnSetting& setting) const;

    std::filesystem::path folder;
    std::filesystem::path panelFile;
};

}  // namespace orvelle::mqtt
