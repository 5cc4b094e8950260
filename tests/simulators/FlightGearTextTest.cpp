#include "simulators/flightgear/FlightGearText.h"

#include <gtest/gtest.h>

namespace orvelle::simulators {
namespace {

constexpr const char* Whole =
    "COM1=118.305,COM2=121.500,OP1=1,OP2=0,VOL1=0.700,VOL2=0.700,TX=2,PTT=0,ONLINE=1,PAUSED=1,LAT=63.98500,"
    "LON=-22.60560,ALT=171.0,/instrumentation/kma20/knob=-1,AIRCRAFT=c172p,CS=D-EABC\n";

SimulatorState Read(const std::string& line) {
    const auto words = ReadFlightGearLine(line);
    EXPECT_TRUE(words) << line;
    return words ? words->State : SimulatorState();
}

TEST(FlightGearTextTest, AWholeLineTellsAll) {
    const auto words = ReadFlightGearLine(Whole);
    ASSERT_TRUE(words);
    const SimulatorState& state = words->State;
    EXPECT_EQ(state.Radios[0], (Radio{118305, true, true}));
    EXPECT_EQ(state.Radios[1], (Radio{121500, false, false}));
    EXPECT_EQ(state.Transmits, 2);
    EXPECT_EQ(state.Callsign, "D-EABC");
    EXPECT_TRUE(state.IsOnline);
    EXPECT_TRUE(state.IsPaused);
    EXPECT_EQ(state.Where, (Place{63.985, -22.6056, 171}));
    EXPECT_EQ(state.Aircraft, "c172p");
    EXPECT_EQ(words->Others, (std::map<std::string, std::string>{{"/instrumentation/kma20/knob", "-1"}}));
}

TEST(FlightGearTextTest, AFrequencyIsEnough) {
    const SimulatorState state = Read("COM2=121.5");
    EXPECT_EQ(state.Radios[0], Radio());
    EXPECT_EQ(state.Radios[1], (Radio{121500, true, true}));
    EXPECT_EQ(state.Transmits, 1);
    EXPECT_EQ(state.Where, std::nullopt);
    EXPECT_FALSE(state.IsOnline);
}

TEST(FlightGearTextTest, EveryChannelKeepsItsName) {
    for (int kilohertz = 118000; kilohertz < 137000; kilohertz += 5) {
        char line[32];
        std::snprintf(line, sizeof line, "COM1=%.3f\n", kilohertz / 1000.0);
        ASSERT_EQ(Read(line).Radios[0].Kilohertz, kilohertz) << line;
    }
}

TEST(FlightGearTextTest, AFrequencyOutsideOfTheBandIsToldAsItIs) {
    EXPECT_EQ(Read("COM1=108.200,COM2=0.000").Radios[0].Kilohertz, 108200);
    EXPECT_EQ(Read("COM1=399.975,COM2=0.000").Radios[0].Kilohertz, 399975);
    EXPECT_EQ(Read("COM1=399.975,COM2=0.000").Radios[1].Kilohertz, 0);
}

TEST(FlightGearTextTest, NumbersHaveAPointOrAComma) {
    const SimulatorState state =
        Read("COM1=118,305,COM2=121,500,OP1=1,VOL1=0,000,LAT=63,98500,LON=-22,60560,ALT=171,0,CS=A,B\n");
    EXPECT_EQ(state.Radios[0], (Radio{118305, true, false}));
    EXPECT_EQ(state.Radios[1], (Radio{121500, true, true}));
    EXPECT_EQ(state.Where, (Place{63.985, -22.6056, 171}));
    EXPECT_EQ(state.Callsign, "A,B");
}

TEST(FlightGearTextTest, WhatIsNoNumberOrCantBeMakesTheLineNone) {
    for (const char* line :
         {"COM1=nan", "COM1=inf", "COM1=-118.3", "COM1=1e9", "COM1=", "COM1=118.3x", "COM1=1,2,3", "COM1=118.3,OP1=nan",
          "COM1=118.3,OP1=yes", "COM1=118.3,VOL1=-nan", "COM1=118.3,TX=", "COM1=118.3,COM2=tower", "COM1=118.3,PTT=a"})
        EXPECT_FALSE(ReadFlightGearLine(line)) << line;
}

TEST(FlightGearTextTest, WhatIsNoLineIsNone) {
    for (const char* line : {"", "\n", "118.305", "com1=118.305", "OP1=1,CS=D-EABC\n", "=118.305", ",COM1=118.305",
                             "GET / HTTP/1.1\r\n", "CS=COM1=118.3"})
        EXPECT_FALSE(ReadFlightGearLine(line)) << line;
}

TEST(FlightGearTextTest, APlaceThatCantBeIsNoneAndTheRestCounts) {
    for (const char* place : {"LAT=91.00000,LON=0.0,ALT=0.0", "LAT=-90.1,LON=0.0,ALT=0.0", "LAT=1.0,LON=181.0,ALT=0.0",
                              "LAT=nan,LON=0.0,ALT=0.0", "LAT=1.0,LON=0.0,ALT=inf", "LAT=1.0,LON=0.0,ALT=-9999.0",
                              "LAT=1.0,LON=0.0", "LAT=,LON=,ALT="}) {
        const SimulatorState state = Read(std::string("COM1=118.305,") + place + ",CS=D-EABC\n");
        EXPECT_EQ(state.Where, std::nullopt) << place;
        EXPECT_EQ(state.Callsign, "D-EABC") << place;
    }
}

TEST(FlightGearTextTest, ARadioIsHeardWithPowerAndVolume) {
    EXPECT_TRUE(Read("COM1=118.3,OP1=1,VOL1=0.1").Radios[0].IsHeard);
    EXPECT_FALSE(Read("COM1=118.3,OP1=1,VOL1=0.0").Radios[0].IsHeard);
    EXPECT_FALSE(Read("COM1=118.3,OP1=0,VOL1=0.1").Radios[0].IsHeard);
    EXPECT_TRUE(Read("COM1=118.3,OP1=1").Radios[0].IsHeard);
}

TEST(FlightGearTextTest, TheRadioThatTalksIsTheOneThatWould) {
    EXPECT_EQ(Read("COM1=118.3,TX=1,PTT=2").Transmits, 2);
    EXPECT_EQ(Read("COM1=118.3,TX=2,PTT=0").Transmits, 2);
    EXPECT_EQ(Read("COM1=118.3,TX=0,PTT=0").Transmits, 0);
    EXPECT_EQ(Read("COM1=118.3,TX=3").Transmits, 0);
    EXPECT_EQ(Read("COM1=118.3,PTT=2").Transmits, 2);
}

TEST(FlightGearTextTest, TheCallsignIsTheRestOfTheLine) {
    EXPECT_EQ(Read("COM1=118.3,CS=A,B=C,COM1=119.000\n").Callsign, "A,B=C,COM1=119.000");
    EXPECT_EQ(Read("COM1=118.3,CS= Speedbird  1 \r\n").Callsign, "Speedbird  1");
    EXPECT_EQ(Read("COM1=118.3,CALL=ORV1\n").Callsign, "ORV1");
    EXPECT_EQ(Read("COM1=118.3,CS=\n").Callsign, "");
    EXPECT_EQ(Read("COM1=118.3,CS=" + std::string(300, 'x') + "\n").Callsign, std::string(300, 'x'));
}

TEST(FlightGearTextTest, FlightGearsOwnCallsignIsNone) {
    EXPECT_EQ(Read("COM1=118.3,CS=callsign\n").Callsign, "");
    EXPECT_EQ(Read("COM1=118.3,CS=callsigns\n").Callsign, "callsigns");
}

TEST(FlightGearTextTest, TextsAreUtf8WithoutControlCharacters) {
    EXPECT_EQ(Read("COM1=118.3,CS=K\xF6ln\n").Callsign, "K\xC3\xB6ln");
    EXPECT_EQ(Read("COM1=118.3,CS=K\xC3\xB6ln\n").Callsign, "K\xC3\xB6ln");
    EXPECT_EQ(Read(std::string("COM1=118.3,CS=A\0B\tC\x7F\n", 21)).Callsign, "ABC");
    EXPECT_EQ(Read("COM1=118.3,AIRCRAFT=\xFF,CS=\n").Aircraft, "\xC3\xBF");
}

TEST(FlightGearTextTest, ALineThatWasCutLosesItsLastMember) {
    const std::string start = "COM1=118.305,AIRCRAFT=c172p,/a=";
    const std::string longName(LeastCutFlightGearLine - start.size() - 8, 'n');
    const std::string inCallsign = start + longName + ",CS=D-EA";
    ASSERT_EQ(inCallsign.size(), LeastCutFlightGearLine);
    EXPECT_EQ(Read(inCallsign).Callsign, "");
    EXPECT_EQ(Read(inCallsign).Aircraft, "c172p");
    EXPECT_EQ(Read(inCallsign + "\n").Callsign, "D-EA");

    const auto inNumber = ReadFlightGearLine(start + longName + ",COM2=12");
    ASSERT_TRUE(inNumber);
    EXPECT_EQ(inNumber->State.Radios[1], Radio());
    EXPECT_EQ(inNumber->Others.at("/a"), longName);
}

TEST(FlightGearTextTest, WhatBeginsAsNoMemberBelongsToTheValueBefore) {
    const auto words = ReadFlightGearLine("COM1=118.3,/sim/description=Skyhawk, blue,/b=1,CS=\n");
    ASSERT_TRUE(words);
    EXPECT_EQ(words->Others.at("/sim/description"), "Skyhawk, blue");
    EXPECT_EQ(words->Others.at("/b"), "1");
}

}  // namespace
}  // namespace orvelle::simulators
