#include "simulators/directory/VoiceRecords.h"

#include <gtest/gtest.h>

#include "tests/shared/OwnFolder.h"

namespace orvelle::directory {
namespace {

class VoiceRecords : public testing::Test {
protected:
    RadioVoiceSetting Record(const std::string& station, const std::optional<std::string>& channel,
                             const std::string& callsign = "DEABC") const {
        Choice choice{.Why = Reason::Station, .Station = station, .Voice = VoiceEntry{"club", channel}};
        return VoiceRecordOf(choice, 118020, callsign, &directory, logins);
    }

    OwnFolder folder;
    Directory directory{.Name = "Club",
                        .Servers = {{"club", {TeamSpeakHost, "Voice.example:8767", "pilot", "public", "{mhz}"}}},
                        .Stations = {},
                        .Everywhere = {},
                        .Otherwise = {}};
    OwnLogins logins{folder.Path / "directory-logins.json"};
};

TEST_F(VoiceRecords, TakeTheServersChannelWhereTheEntryNamesNone) {
    EXPECT_EQ(Record("BIKF_TWR", std::nullopt),
              (RadioVoiceSetting{TeamSpeakHost, "Voice.example:8767", "118.025", "pilot", "public"}));
    EXPECT_EQ(Record("BIKF_TWR", "Keflavik Tower").Channel, "Keflavik Tower");
}

TEST_F(VoiceRecords, FillInWhatStandsInBraces) {
    EXPECT_EQ(Record("BIKF_N_TWR", "{khz}/{mhz}/{station}/{airport}/{callsign}").Channel,
              "118025/118.025/BIKF_N_TWR/BIKF/DEABC");
    EXPECT_EQ(Record("UNICOM", "{airport}").Channel, "UNICOM");
    EXPECT_EQ(Record("", "a{airport}b{station}c").Channel, "abc");
    directory.Servers["club"].Server = "{airport}.example";
    directory.Servers["club"].Login = "{callsign}@{station}";
    directory.Servers["club"].Password = "{callsign}";
    EXPECT_EQ(Record("BIKF_TWR", "x"),
              (RadioVoiceSetting{TeamSpeakHost, "BIKF.example", "x", "DEABC@BIKF_TWR", "{callsign}"}));
}

TEST_F(VoiceRecords, FillInEachOnceAndLeaveOtherBraces) {
    EXPECT_EQ(Record("{callsign}", "{station}{", "{mhz}").Channel, "{callsign}{");
    EXPECT_EQ(Record("A", "{{mhz}} {other} {MHZ} {} }{").Channel, "{118.025} {other} {MHZ} {} }{");
}

TEST_F(VoiceRecords, OwnLoginsGoBeforeThoseOfTheDirectory) {
    ASSERT_EQ(logins.Set("voice.EXAMPLE:8767", {"pilot7", "secret"}), "");
    EXPECT_EQ(Record("A", "x").Login, "pilot7");
    EXPECT_EQ(Record("A", "x").Password, "secret");
    ASSERT_EQ(logins.Set("voice.example:8767", {"pilot7", ""}), "");
    EXPECT_EQ(Record("A", "x").Password, "") << "the directory's belongs to its own login";
    ASSERT_EQ(logins.Set("voice.example:8767", {"", "secret"}), "");
    EXPECT_EQ(Record("A", "x").Login, "pilot");
    EXPECT_EQ(Record("A", "x").Password, "secret");
    ASSERT_EQ(logins.Set("voice.example:8767", {"", ""}), "");
    EXPECT_EQ(Record("A", "x").Password, "public");
}

TEST_F(VoiceRecords, AreNoneWithoutAnEntry) {
    EXPECT_EQ(VoiceRecordOf({.Why = Reason::NoneInRange, .Station = "A"}, 118300, "X", &directory, logins),
              RadioVoiceSetting());
    const Choice choice{.Why = Reason::Otherwise, .Voice = VoiceEntry{"club", std::nullopt}};
    EXPECT_EQ(VoiceRecordOf(choice, 118300, "X", nullptr, logins), RadioVoiceSetting());
    directory.Servers.clear();
    EXPECT_EQ(VoiceRecordOf(choice, 118300, "X", &directory, logins), RadioVoiceSetting());
}

}  // namespace
}  // namespace orvelle::directory
