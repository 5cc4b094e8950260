#include "simulators/xplane/XPlaneValues.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <set>
#include <string>

namespace orvelle::simulators {
namespace {

// Values as they are told, by what they are of.
class XPlaneValuesTest : public testing::Test {
protected:
    void Tell(RadioValue value, std::size_t radio, float told) { Tell(NumberOf(value, radio), told); }
    void Tell(AircraftValue value, float told) { Tell(NumberOf(value), told); }
    void Tell(std::size_t number, float told) {
        EXPECT_EQ(values.Take({{static_cast<std::int32_t>(number), told}}), 1U);
    }
    void TellText(TextValue text, const std::string& told) {
        for (std::size_t byte = 0; byte < LengthOf(text); ++byte)
            Tell(NumberOf(text) + byte, byte < told.size() ? static_cast<unsigned char>(told[byte]) : 0);
    }
    void SwitchOn() {
        Tell(AircraftValue::Avionics, 1);
        for (std::size_t radio = 0; radio < 2; ++radio) Tell(RadioValue::Power, radio, 1);
    }
    Radio First() const { return values.State().Radios[0]; }

    XPlaneValues values;
};

TEST_F(XPlaneValuesTest, EachDatarefIsAskedForOnceAndAllAtOneGo) {
    std::set<std::string> names;
    for (const Dataref& each : XPlaneDatarefs()) {
        EXPECT_TRUE(names.insert(each.Name).second) << each.Name;
        EXPECT_GT(each.TimesASecond, 0) << each.Name;
        EXPECT_LE(each.Name.size(), LongestDataref);
    }
    EXPECT_LE(names.size(), 140U);
    const std::vector<Dataref> all = XPlaneDatarefs();
    EXPECT_EQ(all.at(NumberOf(RadioValue::Volume, 1)).Name, "sim/cockpit2/radios/actuators/audio_volume_com2");
    EXPECT_EQ(all.at(NumberOf(AircraftValue::Elevation)).Name, "sim/flightmodel/position/elevation");
    EXPECT_EQ(all.at(NumberOf(TextValue::Kind) + 7).Name, "sim/aircraft/view/acf_ICAO[7]");
    EXPECT_EQ(all.size(), NumberOf(TextValue::Kind) + LengthOf(TextValue::Kind));
}

TEST_F(XPlaneValuesTest, FrequenciesAreKilohertz) {
    for (const auto& [told, meant] : std::map<float, int>{{118305, 118305},
                                                          {136990, 136990},
                                                          {121500.4F, 121500},
                                                          {0, 0},
                                                          {-118305, 0},
                                                          {1e30F, 0},
                                                          {-1e30F, 0},
                                                          {108000, 108000}}) {
        Tell(RadioValue::Frequency, 0, told);
        EXPECT_EQ(First().Kilohertz, meant) << told;
    }
}

TEST_F(XPlaneValuesTest, ARadioNeedsItsOwnPowerAndTheAvionics) {
    EXPECT_FALSE(First().IsOperable);
    SwitchOn();
    EXPECT_TRUE(First().IsOperable);
    Tell(RadioValue::Power, 0, 0);
    EXPECT_FALSE(First().IsOperable);
    EXPECT_TRUE(values.State().Radios[1].IsOperable);
    Tell(RadioValue::Power, 0, 1);
    Tell(AircraftValue::Avionics, 0);
    EXPECT_FALSE(First().IsOperable);
}

TEST_F(XPlaneValuesTest, ARadioIsHeardWhereItIsSelected) {
    SwitchOn();
    EXPECT_FALSE(First().IsHeard);
    Tell(RadioValue::Selected, 0, 1);
    EXPECT_TRUE(First().IsHeard);
    Tell(RadioValue::Volume, 0, 0);
    EXPECT_FALSE(First().IsHeard) << "turned down";
    Tell(RadioValue::Volume, 0, 0.1F);
    EXPECT_TRUE(First().IsHeard);
    Tell(AircraftValue::Avionics, 0);
    EXPECT_FALSE(First().IsHeard) << "without power";
}

TEST_F(XPlaneValuesTest, TheTransmittingRadioIsHeardWhereTheAircraftSaysSo) {
    SwitchOn();
    Tell(AircraftValue::Transmits, 6);
    EXPECT_EQ(values.State().Transmits, 1);
    EXPECT_FALSE(First().IsHeard);
    Tell(AircraftValue::HearsTransmitting, 1);
    EXPECT_TRUE(First().IsHeard);
    Tell(AircraftValue::Transmits, 7);
    EXPECT_EQ(values.State().Transmits, 2);
    EXPECT_FALSE(First().IsHeard);
    EXPECT_TRUE(values.State().Radios[1].IsHeard);
    for (const float other : {0.0F, 5.0F, 8.0F, 6.5F, -6.0F}) {
        Tell(AircraftValue::Transmits, other);
        EXPECT_EQ(values.State().Transmits, 0) << other;
    }
}

TEST_F(XPlaneValuesTest, APlaceThatCanNotBeIsNone) {
    Tell(AircraftValue::Latitude, 90);
    Tell(AircraftValue::Longitude, -180);
    EXPECT_FALSE(values.State().Where);
    Tell(AircraftValue::Elevation, 3048);
    ASSERT_TRUE(values.State().Where);
    EXPECT_NEAR(values.State().Where->Altitude, 10000, 0.01);
    Tell(AircraftValue::Latitude, 91);
    EXPECT_FALSE(values.State().Where);
    Tell(AircraftValue::Latitude, 0);
    Tell(AircraftValue::Longitude, 181);
    EXPECT_FALSE(values.State().Where);
    Tell(AircraftValue::Longitude, 0);
    Tell(AircraftValue::Elevation, 1e20F);
    EXPECT_FALSE(values.State().Where);
}

TEST_F(XPlaneValuesTest, TextsComeByteByByte) {
    TellText(TextValue::Tail, " D-E\xC3\x84\x42 ");
    TellText(TextValue::Kind, "C172");
    EXPECT_EQ(values.State().Tail, "D-E\xC3\x84\x42");
    EXPECT_EQ(values.State().Aircraft, "C172");
    Tell(NumberOf(TextValue::Tail) + 4, -61);  // 0xC3 with a sign
    EXPECT_EQ(values.State().Tail, "D-E\xC3\x84\x42");
}

TEST_F(XPlaneValuesTest, WhatIsNoTextIsNone) {
    for (const std::string& text : {std::string("N1\n2"), std::string("   "), std::string("\xC3N1"), std::string()}) {
        TellText(TextValue::Tail, text);
        EXPECT_EQ(values.State().Tail, "") << text;
    }
    for (const float byte : {1e30F, -1e30F, 65.5F, 300.0F}) {
        TellText(TextValue::Tail, "N172SP");
        Tell(NumberOf(TextValue::Tail) + 2, byte);
        EXPECT_EQ(values.State().Tail, "") << byte;
    }
    TellText(TextValue::Tail, std::string(40, 'N'));
    EXPECT_EQ(values.State().Tail, std::string(16, 'N'));
}

TEST_F(XPlaneValuesTest, NumbersThatNobodyAskedForAreLeftOut) {
    const auto count = static_cast<std::int32_t>(XPlaneDatarefs().size());
    EXPECT_EQ(values.Take({{-1, 1.0F}, {count, 1.0F}, {INT32_MAX, 1.0F}, {INT32_MIN, 1.0F}}), 0U);
    EXPECT_EQ(values.Take({{-1, 1.0F}, {0, 118305.0F}}), 1U);
    EXPECT_EQ(First().Kilohertz, 118305);
}

}  // namespace
}  // namespace orvelle::simulators
