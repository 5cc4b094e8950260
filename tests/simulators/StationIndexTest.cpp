// The rule by which an entry is chosen, case by case.
#include "simulators/directory/StationIndex.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "simulators/directory/DirectoryReading.h"
#include "tests/simulators/DirectoryText.h"

namespace orvelle::directory {
namespace {

using simulators::Place;

constexpr double Sea = 0;

std::shared_ptr<const Directory> Read(const std::string& text) {
    ReadText read = ReadDirectory(text);
    EXPECT_EQ(read.FaultCount, 0U) << text;
    return std::make_shared<const Directory>(std::move(*read.Content));
}

std::string At(double miles, double metres = 0) {
    return "'latDeg': " + std::to_string(miles / 60.0405) + ", 'lonDeg': 0, 'heightMslM': " + std::to_string(metres);
}
Place PlaceAt(double miles, double feet = Sea) { return {miles / 60.0405, 0, feet}; }

const std::string Unicom = "{'frequency': 122800000, 'voice': {'server': 'club', 'channel': 'Unicom'}}";
const std::string Otherwise = ", 'otherwise': {'server': 'club', 'channel': 'Otherwise'}";

class StationChoice : public testing::Test {
protected:
    void UseAll(const std::vector<std::string>& texts) {
        std::vector<std::shared_ptr<const Directory>> directories;
        for (const std::string& text : texts) directories.push_back(Read(text));
        index = StationIndex(std::move(directories));
    }
    void Use(const std::string& stations, const std::string& everywhere = "", const std::string& others = "") {
        UseAll({DirectoryWith(ClubServer, stations, everywhere, others)});
    }
    // What is chosen is held from then on.
    Reason Tune(int kilohertz, const std::optional<Place>& place) {
        held = index.Choose(kilohertz, place, held);
        return held.Why;
    }

    StationIndex index;
    Choice held;
};

TEST_F(StationChoice, SaysWhyThereIsNone) {
    EXPECT_EQ(Tune(118300, std::nullopt), Reason::NoDirectory);
    Use(StationText("A", 118300, "", At(0)) + "," + StationText("B", 118300, "", At(500)));
    EXPECT_EQ(Tune(0, std::nullopt), Reason::NotTuned);
    EXPECT_EQ(Tune(108000, std::nullopt), Reason::NotTuned);
    EXPECT_EQ(Tune(121500, PlaceAt(0)), Reason::NotListed);
    EXPECT_EQ(Tune(118300, std::nullopt), Reason::PlaceUnknown);
    EXPECT_EQ(Tune(118300, PlaceAt(200)), Reason::NoneInRange);
    EXPECT_FALSE(held.Voice);
    EXPECT_EQ(held.Station, "A");
    EXPECT_NEAR(*held.Distance, 200, 0.1);
    EXPECT_EQ(held.Range, 20);
}

TEST_F(StationChoice, RangeGrowsWithBothHeights) {
    Use(StationText("A", 118300, "", At(0, 3048)));  // 10,000 feet
    EXPECT_EQ(Tune(118300, PlaceAt(122)), Reason::Station);
    EXPECT_EQ(Tune(121500, PlaceAt(122)), Reason::NotListed);
    EXPECT_EQ(Tune(118300, PlaceAt(124)), Reason::NoneInRange);
    EXPECT_EQ(Tune(118300, PlaceAt(245, 10'000)), Reason::Station);
    EXPECT_NEAR(*held.Range, 246, 0.01);
    EXPECT_EQ(Tune(121500, PlaceAt(0)), Reason::NotListed);
    EXPECT_EQ(Tune(118300, PlaceAt(122, -500)), Reason::Station) << "below the sea counts as at it";
}

TEST_F(StationChoice, RangeIsAtLeastTwentyUnlessTheStationsOwnIsLess) {
    Use(StationText("A", 118300, "", At(0)) + "," + StationText("B", 118700, ", 'rangeNm': 5", At(0)) + "," +
        StationText("C", 119100, ", 'rangeNm': 300", At(0)));
    EXPECT_EQ(Tune(118300, PlaceAt(19.9)), Reason::Station);
    EXPECT_EQ(Tune(118700, PlaceAt(4.9)), Reason::Station);
    EXPECT_EQ(Tune(119100, PlaceAt(19.9)), Reason::Station);
    EXPECT_EQ(held.Range, 20) << "an own range makes nothing longer";
    EXPECT_EQ(Tune(118300, PlaceAt(20.1)), Reason::NoneInRange);
    EXPECT_EQ(Tune(118700, PlaceAt(5.1, 30'000)), Reason::NoneInRange);
}

TEST_F(StationChoice, TheNearestInRangeCounts) {
    Use(StationText("FAR", 118300, ", 'rangeNm': 200", At(0)) + "," + StationText("NEAR", 118300, "", At(50)) + "," +
        StationText("SHORT", 118300, ", 'rangeNm': 1", At(40)));
    EXPECT_EQ(Tune(118300, PlaceAt(38, 20'000)), Reason::Station);
    EXPECT_EQ(held.Station, "NEAR") << "the nearest of all doesn't reach";
    EXPECT_EQ(held.Voice->Channel, "NEAR");
}

TEST_F(StationChoice, OfEquallyNearOnesTheFirstByCallsignCounts) {
    Use(StationText("EDDF_S_TWR", 118300, "", At(0)) + "," + StationText("EDDF_N_TWR", 118300, "", At(0)) + "," +
        StationText("EDDF_W_TWR", 118300, "", At(0)));
    EXPECT_EQ(Tune(118300, PlaceAt(3)), Reason::Station);
    EXPECT_EQ(held.Station, "EDDF_N_TWR");
}

TEST_F(StationChoice, OfSeveralTransceiversTheNearestInRangeCounts) {
    const std::string low = "{'frequency': 118300000, " + At(0) + "}";
    const std::string high = "{'frequency': 118300000, " + At(60, 3048) + "}";
    Use("{'callsign': 'A', 'transceivers': [" + low + "," + high + "], 'voice': {'server': 'club'}}");
    EXPECT_EQ(Tune(118300, PlaceAt(10)), Reason::Station);
    EXPECT_NEAR(*held.Distance, 10, 0.01);
    EXPECT_EQ(Tune(121500, PlaceAt(0)), Reason::NotListed);
    EXPECT_EQ(Tune(118300, PlaceAt(25)), Reason::Station);
    EXPECT_NEAR(*held.Distance, 35, 0.01) << "the low one reaches 20";
}

TEST_F(StationChoice, AHeldStationIsLeftAtATenthMore) {
    Use(StationText("A", 118300, "", At(0)), "", Otherwise);
    EXPECT_EQ(Tune(118300, PlaceAt(20.5)), Reason::Otherwise);
    EXPECT_EQ(Tune(118300, PlaceAt(19.9)), Reason::Station);
    EXPECT_EQ(Tune(118300, PlaceAt(21.9)), Reason::HeldStation);
    EXPECT_EQ(Tune(118300, PlaceAt(19.9)), Reason::Station);
    EXPECT_EQ(Tune(118300, PlaceAt(22.1)), Reason::Otherwise);
    EXPECT_EQ(Tune(118300, PlaceAt(21.9)), Reason::Otherwise);
    EXPECT_EQ(Tune(118300, PlaceAt(19.9)), Reason::Station);
    EXPECT_EQ(Tune(122800, PlaceAt(19.9)), Reason::Otherwise);
    EXPECT_EQ(Tune(118300, PlaceAt(21.9)), Reason::Otherwise) << "another channel was tuned meanwhile";
}

TEST_F(StationChoice, AHeldStationIsLeftForOneThatIsNearerByATenth) {
    Use(StationText("A", 118300, ", 'rangeNm': 100", At(0)) + "," +
        StationText("B", 118300, ", 'rangeNm': 100", At(100)));
    const auto station = [this](double miles) {
        Tune(118300, PlaceAt(miles, 30'000));
        return held.Station;
    };
    EXPECT_EQ(station(40), "A");
    EXPECT_EQ(station(51), "A");
    EXPECT_EQ(station(52.3), "A");
    EXPECT_EQ(station(52.5), "B");
    EXPECT_EQ(station(49), "B");
    EXPECT_EQ(station(47.5), "A");
}

TEST_F(StationChoice, WhatWasOnlyTooFarAwayIsNotHeld) {
    Use(StationText("A", 118300, "", At(0)));
    EXPECT_EQ(Tune(118300, PlaceAt(21)), Reason::NoneInRange);
    EXPECT_EQ(Tune(118300, PlaceAt(21)), Reason::NoneInRange);
    EXPECT_EQ(Tune(118300, std::nullopt), Reason::OnlyStation);
    EXPECT_EQ(Tune(118300, PlaceAt(21)), Reason::NoneInRange);
}

TEST_F(StationChoice, ThenEverywhereThenOtherwise) {
    Use(StationText("A", 122800, "", At(0)), Unicom, Otherwise);
    EXPECT_EQ(Tune(122800, PlaceAt(1)), Reason::Station);
    EXPECT_EQ(Tune(122800, PlaceAt(30)), Reason::Everywhere);
    EXPECT_EQ(held.Voice->Channel, "Unicom");
    EXPECT_EQ(held.Station, "");
    EXPECT_EQ(Tune(118300, PlaceAt(1)), Reason::Otherwise);
    EXPECT_EQ(held.Voice->Channel, "Otherwise");
}

TEST_F(StationChoice, WithoutAPlaceTheOnlyStationCounts) {
    const double nowhere = std::numeric_limits<double>::quiet_NaN();
    Use(StationText("A", 118300, "", At(0)) + "," + StationText("B", 118700, "", At(0)) + "," +
            StationText("C", 118700, "", At(0)) + "," + StationText("D", 122800, "", At(0)) + "," +
            StationText("E", 122800, "", At(0)),
        Unicom);
    for (const std::optional<Place>& place : {std::optional<Place>(), std::optional(Place{nowhere, 0, 0})}) {
        EXPECT_EQ(Tune(118300, place), Reason::OnlyStation);
        EXPECT_EQ(held.Station, "A");
        EXPECT_FALSE(held.Distance);
        EXPECT_EQ(Tune(118700, place), Reason::PlaceUnknown);
        EXPECT_EQ(Tune(122800, place), Reason::Everywhere);
    }
}

TEST_F(StationChoice, TheFirstDirectoryThatHasAnyWins) {
    const std::string first = DirectoryWith(ClubServer, StationText("A", 118300, "", At(0)));
    const std::string second =
        DirectoryWith(ClubServer, StationText("B", 118300, "", At(1)) + "," + StationText("C", 118300, "", At(90)),
                      Unicom, Otherwise);
    UseAll({first, second});
    EXPECT_EQ(Tune(118300, PlaceAt(1)), Reason::Station);
    EXPECT_EQ(held.Station, "A") << "though that of the second is nearer";
    EXPECT_EQ(Tune(118300, PlaceAt(90)), Reason::Station);
    EXPECT_EQ(held.Station, "C");
    EXPECT_EQ(held.Directory, 1U);
    EXPECT_EQ(index.Find(held.Directory)->Stations.size(), 2U);
    EXPECT_EQ(Tune(118300, PlaceAt(50)), Reason::Otherwise);
    UseAll({second, first});
    EXPECT_EQ(Tune(118300, PlaceAt(-20.5)), Reason::Otherwise) << "before the next one's station";
    EXPECT_EQ(index.Find(2), nullptr);
}

TEST_F(StationChoice, OfStationsThatAreTooFarTheNearestIsNamed) {
    UseAll({DirectoryWith(ClubServer, StationText("A", 118300, "", At(0))),
            DirectoryWith(ClubServer, StationText("B", 118300, "", At(100))), DirectoryWith(ClubServer)});
    EXPECT_EQ(Tune(118300, PlaceAt(70)), Reason::NoneInRange);
    EXPECT_EQ(held.Station, "B");
    EXPECT_EQ(held.Directory, 1U);
    EXPECT_EQ(Tune(118300, PlaceAt(40)), Reason::NoneInRange);
    EXPECT_EQ(held.Station, "A");
}

TEST_F(StationChoice, ChoicesAreTheSameHoweverFar) {
    Use(StationText("A", 118300, "", At(0)) + "," + StationText("B", 118700, "", At(0)));
    const Choice near = index.Choose(118300, PlaceAt(1), {});
    EXPECT_EQ(near, index.Choose(118300, PlaceAt(19), {}));
    EXPECT_FALSE(near == index.Choose(118700, PlaceAt(1), {}));
    EXPECT_FALSE(near == index.Choose(118300, PlaceAt(30), {}));
}

}  // namespace
}  // namespace orvelle::directory
