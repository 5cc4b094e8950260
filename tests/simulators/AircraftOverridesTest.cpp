#include "simulators/AircraftOverrides.h"

#include <gtest/gtest.h>

#include <fstream>

#include "simulators/AircraftFile.h"
#include "simulators/flightgear/FlightGearText.h"
#include "tests/shared/OwnFolder.h"

namespace orvelle::simulators {
namespace {

AircraftOverrides Packaged() {
    AircraftOverrides overrides;
    EXPECT_EQ(overrides.Add(std::filesystem::path(FLIGHTGEAR_PACKAGED) / "aircraft.json"), "");
    return overrides;
}

std::string Of(const AircraftOverrides& overrides, const std::string& members) {
    const auto words = ReadFlightGearLine("COM1=118.305,COM2=121.500," + members + ",CS=\n");
    EXPECT_TRUE(words) << members;
    if (!words) return "";
    const SimulatorState state = overrides.Apply(AircraftOf::FlightGear, words->State,
                                                 [&](const std::string& property) { return words->Other(property); });
    return std::string(state.Radios[0].IsHeard ? "1" : "-") + (state.Radios[1].IsHeard ? "2" : "-") + " talks " +
           std::to_string(state.Transmits);
}

std::string Knob(const std::string& knob, const std::string& more = "") {
    return "VOL1=0.000,VOL2=0.000,TX=1,/instrumentation/kma20/knob=" + knob +
           ",/instrumentation/kma20/auto=0,AIRCRAFT=c172p" + more;
}

TEST(AircraftOverridesTest, TheKnobOfTheCessnaTellsWhereTheUserTalks) {
    const AircraftOverrides overrides = Packaged();
    EXPECT_EQ(Of(overrides, Knob("-1")), "-- talks 1");
    EXPECT_EQ(Of(overrides, Knob("0")), "-- talks 2");
    EXPECT_EQ(Of(overrides, Knob("1")), "-- talks 0");
    EXPECT_EQ(Of(overrides, Knob("-1.000000")), "-- talks 1");
    EXPECT_EQ(Of(overrides, Knob("7")), "-- talks 0");
}

TEST(AircraftOverridesTest, TheCessnaHearsWhereItTalksWhileAutoIsOn) {
    const AircraftOverrides overrides = Packaged();
    for (const char* on : {"1", "-1"}) {
        const std::string automatic = std::string(",/instrumentation/kma20/auto=") + on;
        EXPECT_EQ(Of(overrides, Knob("-1", automatic)), "1- talks 1");
        EXPECT_EQ(Of(overrides, Knob("0", automatic)), "-2 talks 2");
        EXPECT_EQ(Of(overrides, Knob("1", automatic)), "-- talks 0");
        EXPECT_EQ(Of(overrides, Knob("-1", automatic + ",OP1=0")), "-- talks 1");
        EXPECT_EQ(Of(overrides, Knob("-1", automatic + ",VOL2=0.700")), "12 talks 1");
    }
}

TEST(AircraftOverridesTest, OtherAircraftKeepTheUsualRule) {
    const AircraftOverrides overrides = Packaged();
    const std::string line = "VOL1=0.700,VOL2=0.000,TX=1,/instrumentation/kma20/knob=0,AIRCRAFT=";
    EXPECT_EQ(Of(overrides, line + "ufo"), "1- talks 1");
    EXPECT_EQ(Of(overrides, line + "c172p-float"), "1- talks 2");
    EXPECT_EQ(Of(overrides, line), "1- talks 1");
}

TEST(AircraftOverridesTest, APropertyThatTheLineDoesntHoldChangesNothing) {
    const AircraftOverrides overrides = Packaged();
    EXPECT_EQ(Of(overrides, "VOL1=0.700,VOL2=0.000,TX=2,AIRCRAFT=c172p"), "1- talks 2");
    EXPECT_EQ(Of(overrides, "VOL1=0.700,VOL2=0.000,TX=2,/instrumentation/kma20/knob=,AIRCRAFT=c172p"), "1- talks 2");
}

struct OwnFile : OwnFolder {
    std::string Add(const std::string& text) {
        std::ofstream(Path / "aircraft.json", std::ios::binary) << text;
        return Overrides.Add(Path / "aircraft.json");
    }
    std::string Sentence(const std::string& reason) { return (Path / "aircraft.json").string() + reason; }

    AircraftOverrides Overrides;
};

TEST(AircraftOverridesTest, PropertiesTellWhatIsHeard) {
    OwnFile own;
    ASSERT_EQ(own.Add(R"({"format": "orvelle-aircraft/1", "aircraft": [
        {"simulator": "another", "anything": 1},
        {"simulator": "flightgear", "names": ["a?", "*jet*", "b*"], "heard": [{"property": "/a/b[1]/com-1"}, null]}]})"),
              "");
    EXPECT_EQ(own.Overrides.Properties(AircraftOf::FlightGear), std::vector<std::string>{"/a/b[1]/com-1"});
    for (const char* held : {"true", "1", "-1", "0.500000"})
        EXPECT_EQ(Of(own.Overrides, std::string("VOL1=0,/a/b[1]/com-1=") + held + ",AIRCRAFT=bigjet2"), "12 talks 1")
            << held;
    for (const char* held : {"false", "0", "0.000", "no"})
        EXPECT_EQ(Of(own.Overrides, std::string("VOL2=0,/a/b[1]/com-1=") + held + ",AIRCRAFT=jet"), "-- talks 1")
            << held;
    EXPECT_EQ(Of(own.Overrides, "OP1=0,/a/b[1]/com-1=1,AIRCRAFT=jet"), "-2 talks 1");
    EXPECT_EQ(Of(own.Overrides, "/a/b[1]/com-1=0,AIRCRAFT=b"), "-2 talks 1");
    EXPECT_EQ(Of(own.Overrides, "/a/b[1]/com-1=0,AIRCRAFT=ab"), "12 talks 1") << "? is no sign for any character";
}

TEST(AircraftOverridesTest, TheFirstFileCounts) {
    OwnFile own;
    ASSERT_EQ(own.Add(R"({"format": "orvelle-aircraft/1", "aircraft": [{"simulator": "flightgear", "names": ["c172p"],
        "transmits": {"property": "/mine", "values": {"both": 1}}}]})"),
              "");
    ASSERT_EQ(own.Overrides.Add(std::filesystem::path(FLIGHTGEAR_PACKAGED) / "aircraft.json"), "");
    EXPECT_EQ(Of(own.Overrides, Knob("0", ",/mine=both")), "-- talks 1");
    EXPECT_EQ(own.Overrides.Properties(AircraftOf::FlightGear),
              (std::vector<std::string>{"/mine", "/instrumentation/kma20/knob", "/instrumentation/kma20/auto"}));
}

TEST(AircraftOverridesTest, AMistakeIsNamedByFileAndLine) {
    const std::string head = "{\"format\": \"orvelle-aircraft/1\",\n\"aircraft\": [\n{\"simulator\": \"flightgear\",\n";
    struct Mistake {
        std::string Text;
        std::string Told;
    };
    for (const auto& [text, told] : std::vector<Mistake>{
             {"", ", line 1: the text breaks off from JSON here."},
             {"{\"format\": \"orvelle-aircraft/1\",\n\n\"aircraft\": [}",
              ", line 3: the text breaks off from JSON here."},
             {"[]", ", line 1: \"format\" must be \"orvelle-aircraft/1\"."},
             {"{\n\"format\": \"orvelle-aircraft/2\"}", ", line 2: \"format\" must be \"orvelle-aircraft/1\"."},
             {"{\"format\": \"orvelle-aircraft/1\"}", ", line 1: \"aircraft\" must be a list."},
             {"{\"format\": \"orvelle-aircraft/1\",\n\"aircraft\": [\n7]}", ", line 3: an aircraft must be an object."},
             {head + "\"names\": []}]}", ", line 4: \"names\" must name an aircraft."},
             {head + "\"names\": [\"a\",\n\"\"]}]}", ", line 5: a name must be a text, as \"c172p*\"."},
             {head + "\"names\": [\"a\"],\n\"transmits\": {\"property\": \"/a\"}}]}",
              ", line 5: \"values\" must tell the radio for each value, as {\"0\": 1, \"1\": 2}."},
             {head + "\"names\": [\"a\"],\n\"transmits\": {\"property\": \"/a\",\n\"values\": {\"0\":\n3}}}]}",
              ", line 7: a value must mean the radio 1 or 2, or 0 for none."},
             {head + "\"names\": [\"a\"],\n\"heard\": [{\"property\": \"/a\"},\n{\"property\": \"a,b\"}]}]}",
              ", line 6: \"property\" must name a property of FlightGear by its whole path, as "
              "\"/controls/radios/comm-ptt\"."},
             {"{\"format\": \"orvelle-aircraft/1\",\n\"aircraft\": [\n{\"simulator\": \"xplane\", \"names\": "
              "[\"A320\"],\n"
              "\"power\": [{\"property\": \"/a\"}, null]}]}",
              ", line 4: \"dataref\" must name a dataref of X-Plane by its whole path, as "
              "\"sim/cockpit2/radios/actuators/com1_power\"."},
             {head + "\"names\": [\"a\"],\n\"heard\": []}]}",
              ", line 5: \"heard\" must be a list of two, for COM1 and COM2."},
         }) {
        OwnFile own;
        EXPECT_EQ(own.Add(text), own.Sentence(told));
        EXPECT_TRUE(own.Overrides.Properties(AircraftOf::FlightGear).empty()) << text;
    }
}

TEST(AircraftOverridesTest, AFileThatIsNoneOrTooLongIsTold) {
    OwnFile own;
    EXPECT_EQ(own.Overrides.Add(own.Path / "missing.json"), "");
    EXPECT_EQ(own.Overrides.Add(own.Path), own.Path.string() + " can't be read: it is no plain file.");
    EXPECT_EQ(own.Add(std::string(LongestAircraftFile + 1, ' ')), own.Sentence(" can't be read: it is too long."));
    EXPECT_EQ(own.Add(std::string(LongestAircraftFile, '[')),
              own.Sentence(", line 1: the text breaks off from JSON here."));
}

}  // namespace
}  // namespace orvelle::simulators
