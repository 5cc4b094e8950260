#include "apps/simulator/PartsOfPage.h"

#include "platform/sides/NetworkSide.h"

namespace orvelle {

namespace {

// FlightGear's trouble stands beside its lines.
SimulatorPageContent ContentOf(const SimulatorParts& parts, const NetworkSide& network) {
    return {.PassedOver = parts.Choice.PassedOver(),
            .Trouble = parts.XPlane.Problem(),
            .OwnCallsign = parts.Session.OwnCallsign(),
            .Radios = parts.Session.Radios(),
            .Records = network.Session().Voice,
            .Directories = parts.Directories.Told(),
            .Addresses = parts.Addresses.Addresses()};
}

}  // namespace

SimulatorPageParts PartsOfPage(SimulatorParts& parts, const NetworkSide& network) {
    return {.FlightGear = parts.FlightGearLine,
            .Options = parts.FlightGear.Options,
            .Logins = parts.Logins,
            .Directories = {.Folder = parts.DirectoryFiles,
                            .Enter =
                                [&parts](const std::vector<std::string>& addresses) {
                                    return parts.Addresses.Enter(addresses);
                                },
                            .FetchNow = [&parts] { parts.Addresses.FetchNow(); }},
            .Chosen = [&parts] { return parts.Choice.Chosen(); },
            .Content = [&parts, &network] { return ContentOf(parts, network); },
            .SetOwnCallsign = [&parts](const std::string& callsign) { parts.SetOwnCallsign(callsign); },
            .LoginsChanged = [&parts] { parts.Session.TakeUpLogins(); }};
}

}  // namespace orvelle
