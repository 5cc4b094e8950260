// A frequency typed by hand, looked up in real directories without a place.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "apps/simulator/ChoiceWords.h"
#include "apps/simulator/HandTuning.h"
#include "simulators/directory/DirectoryReading.h"

namespace orvelle {
namespace {

using directory::Choice;
using directory::Reason;

constexpr const char* Club = R"({"format": "orvelle-directory/1", "name": "Club",
 "servers": {"club": {"software": "teamspeak", "server": "voice.example.org", "login": "guest", "channel": "{mhz}"}},
 "stations": [
  {"callsign": "BIKF_TWR", "transceivers": [{"frequency": 118300000, "latDeg": 63.98, "lonDeg": -22.61, "heightMslM": 52}],
   "voice": {"server": "club", "channel": "Keflavik {callsign}"}},
  {"callsign": "EDDF_TWR", "transceivers": [{"frequency": 119900000, "latDeg": 50.03, "lonDeg": 8.57, "heightMslM": 111}],
   "voice": {"server": "club"}},
  {"callsign": "LOWI_TWR", "transceivers": [{"frequency": 119900000, "latDeg": 47.26, "lonDeg": 11.34, "heightMslM": 580}],
   "voice": {"server": "club"}}],
 "everywhere": [{"frequency": 122800000, "voice": {"server": "club", "channel": "Unicom"}}]})";

class HandTuningTest : public testing::Test {
protected:
    deck::FoundChannel LookUp(const std::string& frequency) { return LookUpByHand(index, logins, frequency, "ORV1"); }
    static std::vector<std::shared_ptr<const directory::Directory>> One() {
        return {std::make_shared<directory::Directory>(directory::ReadDirectory(Club).Content.value())};
    }

    directory::StationIndex index{One()};
    directory::OwnLogins logins{"never-written.json"};
};

TEST_F(HandTuningTest, TheOnlyStationOfAChannelBringsItsRecord) {
    const deck::FoundChannel found = LookUp("118.300");
    EXPECT_EQ(found.Voice, (RadioVoiceSetting{TeamSpeakHost, "voice.example.org", "Keflavik ORV1", "guest", ""}));
    EXPECT_EQ(found.Words.toStdString(),
              "BIKF_TWR, the only station of 118.300, as no place is known, from the directory Club");
}

TEST_F(HandTuningTest, AChannelThatIsValidEverywhereBringsItsRecord) {
    const deck::FoundChannel found = LookUp("122.800");
    ASSERT_TRUE(found.Voice);
    EXPECT_EQ(found.Voice->Channel, "Unicom");
}

TEST_F(HandTuningTest, WhatHasNoEntryLeavesTheRecordAndIsTold) {
    for (const auto& [frequency, words] : {std::pair("119.900", "several stations of 119.900, and no place is known"),
                                           std::pair("125.000", "not listed")}) {
        const deck::FoundChannel found = LookUp(frequency);
        EXPECT_FALSE(found.Voice) << frequency;
        EXPECT_EQ(found.Words.toStdString(), words);
    }
}

TEST_F(HandTuningTest, WithoutADirectoryNothingIsSaid) {
    index = directory::StationIndex();
    const deck::FoundChannel found = LookUp("118.300");
    EXPECT_FALSE(found.Voice);
    EXPECT_EQ(found.Words, "");
}

TEST(ChoiceWordsTest, EachReasonHasItsWords) {
    const auto words = [](Reason why, const std::string& station = "", std::optional<double> distance = {},
                          std::optional<double> range = {}) {
        return ChoiceWords(Choice{why, 0, station, distance, range, {}}, 118300).toStdString();
    };
    EXPECT_EQ(words(Reason::NoDirectory), "");
    EXPECT_EQ(words(Reason::Station, "BIKF_TWR", 12.34, 50), "BIKF_TWR, 12.3 nm of 50");
    EXPECT_EQ(words(Reason::HeldStation, "BIKF_TWR", 51, 50), "BIKF_TWR, 51 nm of 50, kept a little beyond its range");
    EXPECT_EQ(words(Reason::OnlyStation, "BIKF_TWR"), "BIKF_TWR, the only station of 118.300, as no place is known");
    EXPECT_EQ(words(Reason::Everywhere), "valid everywhere");
    EXPECT_EQ(words(Reason::Otherwise), "what the directory has for all others");
    EXPECT_EQ(words(Reason::NoneInRange, "BIKF_TWR", 140.4, 63),
              "the nearest is BIKF_TWR, 140 nm away, which reaches 63");
    EXPECT_EQ(words(Reason::PlaceUnknown), "several stations of 118.300, and no place is known");
    EXPECT_EQ(words(Reason::NotListed), "not listed");
    EXPECT_EQ(words(Reason::NotTuned), "118.300 is none of the radios' channels");
}

}  // namespace
}  // namespace orvelle
