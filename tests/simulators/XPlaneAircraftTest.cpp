// Aircraft of X-Plane whose panels work differently, as a file names their datarefs.
#include <gtest/gtest.h>

#include <fstream>

#include "tests/shared/OwnFolder.h"
#include "tests/simulators/XPlaneRig.h"

namespace orvelle::simulators {
namespace {

AircraftOverrides Described(const std::string& names) {
    const OwnFolder folder;
    std::ofstream(folder.Path / "aircraft.json") << R"({"format": "orvelle-aircraft/1", "aircraft": [
        {"simulator": "flightgear", "names": ["*"], "auto": {"property": "/always"}},
        {"simulator": "xplane", "names": )" << names
                                                 << R"(,
         "power": [{"dataref": "maker/on[0]"}, {"dataref": "maker/on[1]"}],
         "transmits": {"dataref": "maker/selector", "values": {"1": 1, "2.5": 2}},
         "heard": [null, {"dataref": "maker/hears_com2"}], "auto": {"dataref": "maker/auto"}}]})";
    AircraftOverrides aircraft;
    EXPECT_EQ(aircraft.Add(folder.Path / "aircraft.json"), "");
    return aircraft;
}

// One whose own panel alone is switched on.
void SwitchOnOwn(XPlaneServer& server) {
    for (const char* usual : {"sim/cockpit2/switches/avionics_power_on", "sim/cockpit2/radios/actuators/com1_power",
                              "sim/cockpit2/radios/actuators/com2_power"})
        server.Values[usual] = 0;
    for (const char* own : {"maker/on[0]", "maker/on[1]"}) server.Values[own] = 1;
    server.Values["maker/selector"] = 2.5F;
    server.Values["maker/hears_com2"] = 0;
    server.Values["maker/auto"] = 0;
}

std::string Told(const SimulatorState& state) {
    std::string told = "talks " + std::to_string(state.Transmits);
    for (const Radio& radio : state.Radios)
        told += std::string(radio.IsOperable ? " on" : " off") + (radio.IsHeard ? " heard" : "");
    return told;
}

TEST(XPlaneAircraftTest, ItsOwnDatarefsTellPowerSelectionAndHearing) {
    XPlaneRig rig(Described(R"(["A3*", "C172"])"));
    SwitchOnOwn(rig.Server);
    rig.Pass(3000);
    ASSERT_TRUE(rig.Source.State());
    EXPECT_EQ(Told(*rig.Source.State()), "talks 2 on heard on") << "COM1 is heard by the usual rule";
    const auto tells = [&](const char* dataref, float value, const std::string& told) {
        rig.Server.Values[dataref] = value;
        rig.Pass(500);
        EXPECT_EQ(Told(*rig.Source.State()), told) << dataref << " is " << value;
    };
    tells("maker/auto", 1, "talks 2 on heard on heard");
    tells("maker/on[1]", 0, "talks 2 on heard off");
    tells("maker/selector", 1, "talks 1 on heard off");
    tells("maker/selector", 3, "talks 0 on heard off");
    tells("maker/on[1]", 1, "talks 0 on heard on");
    tells("maker/hears_com2", -1, "talks 0 on heard on heard");
}

TEST(XPlaneAircraftTest, OtherAircraftKeepTheUsualRule) {
    XPlaneRig rig(Described(R"(["A3*", "C17"])"));
    SwitchOnOwn(rig.Server);
    rig.Pass(3000);
    ASSERT_TRUE(rig.Source.State());
    EXPECT_EQ(Told(*rig.Source.State()), "talks 1 off off");
}

TEST(XPlaneAircraftTest, DatarefsThatItDoesntHaveChangeNothing) {
    XPlaneRig rig(Described(R"(["C172"])"));
    rig.Pass(3000);
    ASSERT_TRUE(rig.Source.State());
    EXPECT_EQ(Told(*rig.Source.State()), "talks 1 on heard on");
}

}  // namespace
}  // namespace orvelle::simulators
