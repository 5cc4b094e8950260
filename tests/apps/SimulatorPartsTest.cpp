// What the simulator's computer has read at its start is told once somebody listens, whatever the loop did before.
#include "apps/SimulatorParts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "adapters/linux/PollEventLoop.h"
#include "tests/shared/OwnFolder.h"
#include "tests/simulators/SessionRig.h"

namespace orvelle {
namespace {

TEST(SimulatorPartsTest, FilesThatAreDamagedAreToldOnceTheProgramListens) {
    const OwnFolder data;
    for (const char* name : {"directory-addresses.json", "directory-logins.json"})
        std::ofstream(data.Path / name) << "garbage";
    linux::PollEventLoop loop;
    simulators::KeptNetwork network;
    SimulatorParts parts(loop, data.Path, 0, network);
    const auto serve = [&loop] {
        const Ticket soon = loop.After(50, [&loop] { loop.Stop(); });
        loop.Run();
    };
    serve();
    std::vector<std::string> told;
    parts.Told = [&told](const std::string& sentence) { told.push_back(sentence); };
    parts.TellTroubles();
    serve();
    for (const char* what : {"The addresses of directories", "Your logins at voice servers"})
        EXPECT_EQ(std::ranges::count_if(told, [what](const auto& each) { return each.starts_with(what); }), 1) << what;
}

}  // namespace
}  // namespace orvelle
