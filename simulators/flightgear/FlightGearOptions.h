// FlightGear told to send its lines: the protocol file and the two options that switch it on, which a user adds to
// ~/.fgfsrc, one a line, by hand or by this. Called by the window and by `orvelle-sim flightgear`.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "simulators/AircraftOverrides.h"

namespace orvelle::simulators {

class FlightGearOptions {
public:
    // `installed` is the folder whose Protocol/orvelle.xml is the installed one; `own` a folder of the user's, in which
    // one is made where the user's own overrides ask for more properties. `home` holds .fgfsrc.
    FlightGearOptions(std::filesystem::path installed, std::filesystem::path own, std::filesystem::path home,
                      std::uint16_t port);

    // The two lines: --data=FOLDER and --generic=socket,out,20,127.0.0.1,PORT,udp,orvelle
    std::array<std::string, 2> Lines() const;
    std::filesystem::path File() const;  // ~/.fgfsrc

    // The protocol file that sends those properties is at its place after this; Lines() name that place. "" for
    // success, else a sentence.
    std::string Prepare(const AircraftOverrides& aircraft);

    bool AreAdded() const;
    // Adds both to the file's end, keeping a copy of what it was (.fgfsrc.before-orvelle) when there was one; lines of
    // ours from before are replaced. Links are followed. "" for success, else a sentence.
    std::string Add() const;
    // Takes out exactly those lines, and the file where it was made for them and holds nothing else. "" for success,
    // also where there were none.
    std::string TakeOut() const;

private:
    bool IsOurs(const std::string& line) const;
    std::string Change(const std::vector<std::string>& wanted) const;

    const std::filesystem::path installed, own, home;
    const std::uint16_t port;
};

// The text of the protocol file whose lines hold these properties, too.
std::string FlightGearProtocol(const std::vector<std::string>& properties);

}  // namespace orvelle::simulators
