// Each mistake of a directory is told with its line, its field and a sentence, and leaves out its entry alone.
#include "simulators/directory/DirectoryReading.h"

#include <gtest/gtest.h>

#include <ostream>

#include "platform/VoiceSoftware.h"
#include "tests/simulators/DirectoryText.h"

namespace orvelle::directory {

void PrintTo(const Fault& fault, std::ostream* to) {
    *to << fault.Line << ": " << fault.Field << ": " << fault.Sentence;
}

namespace {

std::string Told(const ReadText& read) {
    std::string told;
    for (const Fault& fault : read.Faults)
        told += std::to_string(fault.Line) + ": " + fault.Field + ": " + fault.Sentence + "\n";
    return told;
}

const char* const Place = "'latDeg': 1, 'lonDeg': 2";
const char* const Voice = "'voice': {'server': 'club'}";

std::string Transceivers(const std::string& members) { return "'transceivers': [{" + members + "}]"; }
std::string StationOf(const std::string& members) { return "{'callsign': 'EDDF_TWR', " + members + "}"; }

TEST(DirectoryReading, TakesAWholeDirectory) {
    const ReadText read = ReadDirectory(Json(R"({"format": "orvelle-directory/1", "name": "Club", "servers": {
        "club": {"software": "teamspeak", "server": "voice.example.org:8767", "login": "pilot", "password": "x"},
        "vatsim": {"software": "engine", "server": "mumble.example.org", "channel": "{khz}"}},
        "stations": [{"callsign": "BIKF_TWR", "transceivers": [
            {"id": 0, "frequency": 118300000, "latDeg": 63.98, "lonDeg": -22.61, "heightMslM": 52, "heightAglM": 7},
            {"id": 1, "frequency": 118020000, "latDeg": 64, "lonDeg": -22}],
          "rangeNm": 50, "voice": {"server": "club", "channel": "Keflavik Tower"}}],
        "everywhere": [{"frequency": 122800000, "voice": {"server": "vatsim", "channel": "Unicom"}}],
        "otherwise": {"server": "club"}})"));
    EXPECT_EQ(Told(read), "");
    ASSERT_TRUE(read.Content);
    const Directory& club = *read.Content;
    EXPECT_EQ(club.Name, "Club");
    ASSERT_EQ(club.Servers.size(), 2U);
    EXPECT_EQ(club.Servers.at("club").Software, TeamSpeakHost);
    EXPECT_EQ(club.Servers.at("club").Channel, "{mhz}");
    EXPECT_EQ(club.Servers.at("club").Login, "pilot");
    EXPECT_EQ(club.Servers.at("club").Password, "x");
    EXPECT_EQ(club.Servers.at("vatsim").Software, VatsimVoice);
    ASSERT_EQ(club.Stations.size(), 1U);
    const Station& tower = club.Stations[0];
    EXPECT_EQ(tower.Callsign, "BIKF_TWR");
    EXPECT_EQ(tower.Range, 50);
    EXPECT_EQ(tower.Voice.Channel, "Keflavik Tower");
    ASSERT_EQ(tower.Transceivers.size(), 2U);
    EXPECT_EQ(tower.Transceivers[0].Kilohertz, 118300);
    EXPECT_EQ(tower.Transceivers[0].Height, 52);
    EXPECT_EQ(tower.Transceivers[1].Kilohertz, 118025);
    EXPECT_EQ(tower.Transceivers[1].Height, 0);
    ASSERT_EQ(club.Everywhere.size(), 1U);
    EXPECT_EQ(club.Everywhere[0].Kilohertz, 122800);
    EXPECT_EQ(club.Otherwise->Server, "club");
    EXPECT_FALSE(club.Otherwise->Channel);
    EXPECT_EQ(read.Stations.at(0).Line, 4U);
    EXPECT_EQ(read.Unknown.size(), 2U) << "exports have further members";
}

TEST(DirectoryReading, ServersMayStandLast) {
    const ReadText read = ReadDirectory(Json("{'otherwise': {'server': 'club'}, 'servers': {" +
                                             std::string(ClubServer) + "}, 'format': 'orvelle-directory/1'}"));
    EXPECT_EQ(Told(read), "");
    EXPECT_TRUE(read.Content->Otherwise);
}

TEST(DirectoryReading, TellsEachMistakeOfAServer) {
    const std::string at = "2: servers.club";
    for (const auto& [server, told] : std::vector<std::pair<std::string, std::string>>{
             {"'software': 'mumble', 'server': 'a'",
              ".software: \"mumble\" is no software known here: rogerwilco, teamspeak, teamspeak-url, engine or atis."},
             {"'server': 'a'", ".software: It is missing."},
             {"'software': 'engine'", ".server: It is missing."},
             {"'software': 'engine', 'server': ''", ".server: It is empty."},
             {"'software': 'engine', 'server': 7", ".server: A text is expected here, not a number."},
             {"'software': ['engine'], 'server': 'a'", ".software: A text is expected here, not a list."},
             {"'software': 'engine', 'server': 'a', 'channel': ''", ".channel: It is empty."},
             {"'software': 'engine', 'server': 'a', 'login': null", ".login: A text is expected here, not null."},
             {"'software': 'engine', 'server': 'a', 'server': 'b'", ".server: It stands here a second time."},
             {"'software': 'engine', 'server': 'a\\u0007'", ".server: It holds a control character."},
             {"'software': 'teamspeak-url', 'server': 'voice.example'",
              ": The server has to be an address that begins with \"teamspeak://\", as teamspeak://voice.example "
              "does."},
             {"'software': 'engine', 'server': 'x.example.org:99999'",
              ".server: \"x.example.org:99999\" is neither a host nor a host and a port from 1 to 65535."},
             {"'software': 'engine', 'server': 'x.example.org:0/tower'",
              ".server: \"x.example.org:0/tower\" is neither a host nor a host and a port from 1 to 65535."},
             {"'software': 'engine', 'server': 'the server'",
              ".server: \"the server\" is neither a host nor a host and a port from 1 to 65535."},
             {"'software': 'atis', 'server': 'ftp://example.org/a.ogg'",
              ".server: \"ftp://example.org/a.ogg\" is no address that is played: those of the web begin with "
              "https:// or http://."},
             {"'software': 'atis', 'server': 'https:///a.ogg'", ".server: \"https:///a.ogg\" names no host."},
             {"'software': 'rogerwilco', 'server': '/exec'",
              ": The server may neither begin nor end with a blank, nor hold a quotation mark or a word that begins "
              "with \"/\" or \"-\"."},
             {"'software': 'engine', 'server': '" + std::string(1001, 'a') + "'",
              ".server: It has 1001 characters, more than 1000."}}) {
        // What names it is left out without a word.
        const ReadText read = ReadDirectory(DirectoryWith("'club': {" + server + "}", StationText("A", 118300)));
        EXPECT_EQ(Told(read), at + told + "\n");
        ASSERT_TRUE(read.Content);
        EXPECT_TRUE(read.Content->Servers.empty());
        EXPECT_TRUE(read.Content->Stations.empty());
    }
}

TEST(DirectoryReading, WhatAServerIsWhenItIsFilledInIsHeldAgainstTheRulesThen) {
    const ReadText read = ReadDirectory(
        DirectoryWith("'club': {'software': 'engine', 'server': 'x.example.org:{khz}'}, 'v': {'software': 'engine', "
                      "'server': '[2001:db8::7]:{callsign}'}, 'a': {'software': 'atis', 'server': '{airport}://a'}",
                      StationText("A", 118300), "{'frequency': 122800000, 'voice': {'server': 'v'}}"));
    EXPECT_EQ(Told(read),
              "3: stations[0].voice: \"x.example.org:118300\" is neither a host nor a host and a port from 1 to "
              "65535.\n");
    EXPECT_EQ(read.Content->Servers.size(), 3U);
    EXPECT_EQ(read.Content->Everywhere.size(), 1U);
}

TEST(DirectoryReading, WhatAPanelTakesAsAServerIsNoMistake) {
    for (const char* server :
         {"'engine', 'server': 'x.example.org:65535/Club'", "'engine', 'server': '[2001:db8::7]:64738'",
          "'engine', 'server': '2001:db8::7'", "'atis', 'server': 'HTTP://example.org/a.ogg?b=c://d'",
          "'atis', 'server': 'file:///srv/a.ogg'", "'atis', 'server': 'a.ogg'"})
        EXPECT_EQ(Told(ReadDirectory(DirectoryWith("'club': {'software': " + std::string(server) + "}"))), "");
}

TEST(DirectoryReading, TellsEachMistakeOfAStation) {
    const std::string frequency = "'frequency': 118300000";
    for (const auto& [members, told] : std::vector<std::pair<std::string, std::string>>{
             {Transceivers(frequency + ", 'latDeg': 91, 'lonDeg': 2") + ", " + Voice,
              ".transceivers[0].latDeg: 91 is no latitude: -90 to 90 degrees."},
             {Transceivers(frequency + ", 'latDeg': 1, 'lonDeg': -180.5") + ", " + Voice,
              ".transceivers[0].lonDeg: -180.5 is no longitude: -180 to 180 degrees."},
             {Transceivers(frequency + ", 'latDeg': '1', 'lonDeg': 1") + ", " + Voice,
              ".transceivers[0].latDeg: A number is expected here, not a text."},
             {Transceivers(frequency + ", 'lonDeg': 1") + ", " + Voice, ".transceivers[0].latDeg: It is missing."},
             {Transceivers(frequency + ", " + Place + ", 'heightMslM': 1e300") + ", " + Voice,
              ".transceivers[0].heightMslM: 1e+300 is no height: -1000 to 100000 metres."},
             {Transceivers("'frequency': 118.3, " + std::string(Place)) + ", " + Voice,
              ".transceivers[0].frequency: 118.3 is no frequency in Hz of the aircraft's band: 118000000 to "
              "136995000."},
             {Transceivers("'frequency': 108000000, " + std::string(Place)) + ", " + Voice,
              ".transceivers[0].frequency: 108000000 is no frequency in Hz of the aircraft's band: 118000000 to "
              "136995000."},
             {Transceivers("'frequency': '118.300', " + std::string(Place)) + ", " + Voice,
              ".transceivers[0].frequency: A number is expected here, not a text."},
             {"'transceivers': [], " + std::string(Voice), ".transceivers: It is empty."},
             {"'transceivers': {}, " + std::string(Voice), ".transceivers: A list is expected here, not an object."},
             {"'transceivers': [7], " + std::string(Voice),
              ".transceivers[0]: An object is expected here, not a number."},
             {Voice, ".transceivers: It is missing."},
             {Transceivers(frequency + ", " + Place), ".voice: It is missing."},
             {Transceivers(frequency + ", " + Place) + ", 'voice': {'server': 'clb'}",
              ".voice.server: No server is called \"clb\"."},
             {Transceivers(frequency + ", " + Place) + ", 'voice': {'server': 'club', 'channel': ''}",
              ".voice.channel: It is empty."},
             {Transceivers(frequency + ", " + Place) + ", 'voice': {'server': 'club', 'channel': 'a&b'}",
              ".voice: The channel may hold no quotation mark, \"?\", \"&\", or \"%\" before two hexadecimal digits, "
              "no "
              "word that begins with \"/\" or \"-\", and no blank at either end."},
             {Transceivers(frequency + ", " + Place) + ", 'rangeNm': 0, " + Voice,
              ".rangeNm: 0 is no range: 0.1 to 11000 nautical miles."},
             {Transceivers(frequency + ", " + Place) + ", 'rangeNm': -5, " + Voice,
              ".rangeNm: -5 is no range: 0.1 to 11000 nautical miles."}}) {
        const ReadText read =
            ReadDirectory(DirectoryWith(ClubServer, StationOf(members) + ", " + StationText("EDDM_TWR", 118700)));
        EXPECT_EQ(Told(read), "3: stations[0]" + told + "\n");
        ASSERT_TRUE(read.Content);
        ASSERT_EQ(read.Content->Stations.size(), 1U) << "the other station counts";
        EXPECT_EQ(read.Content->Stations[0].Callsign, "EDDM_TWR");
        EXPECT_EQ(read.Stations[0].Field, "stations[1]");
    }
}

TEST(DirectoryReading, ATransceiverWithAMistakeIsLeftOutAlone) {
    const ReadText read = ReadDirectory(
        DirectoryWith(ClubServer,
                      "{'callsign': 'A', 'transceivers': [{'frequency': 243000000, 'latDeg': 1, 'lonDeg': 1},"
                      "{'frequency': 121500000, 'latDeg': 1, 'lonDeg': 1}], 'voice': {'server': 'club'}}"));
    EXPECT_EQ(read.FaultCount, 1U);
    ASSERT_EQ(read.Content->Stations.size(), 1U);
    EXPECT_EQ(read.Content->Stations[0].Transceivers.size(), 1U);
}

TEST(DirectoryReading, TellsAllMistakesOfAnEntryAtOnce) {
    const ReadText read = ReadDirectory(DirectoryWith(
        ClubServer,
        "{'callsign': '',\n'transceivers': [{'frequency': 1,\n'latDeg': 91}],\n'rangeNm': 'far',\n'voice': {'server': "
        "'clb'}}"));
    EXPECT_EQ(Told(read),
              "3: stations[0].callsign: It is empty.\n"
              "4: stations[0].transceivers[0].frequency: 1 is no frequency in Hz of the aircraft's band: 118000000 to "
              "136995000.\n"
              "4: stations[0].transceivers[0].lonDeg: It is missing.\n"
              "5: stations[0].transceivers[0].latDeg: 91 is no latitude: -90 to 90 degrees.\n"
              "6: stations[0].rangeNm: A number is expected here, not a text.\n"
              "7: stations[0].voice.server: No server is called \"clb\".\n");
}

TEST(DirectoryReading, TellsWhatStandsTwice) {
    const std::string unicom = "{'frequency': 122800000, 'voice': {'server': 'club'}}";
    const ReadText read = ReadDirectory(DirectoryWith(
        std::string(ClubServer) + ",\n" + ClubServer,
        StationText("EDDF_TWR", 118300) + ",\n" + StationText("EDDF_TWR", 118700), unicom + ",\n" + unicom,
        ",\n 'otherwise': {'server': 'club'},\n 'otherwise': {'server': 'club'}"));
    EXPECT_EQ(Told(read),
              "3: servers.club: It stands here a second time.\n"
              "5: stations[1].callsign: \"EDDF_TWR\" stands on line 4 already.\n"
              "7: everywhere[1].frequency: 122.800 stands on line 6 already.\n"
              "9: otherwise: It stands here a second time.\n");
    EXPECT_EQ(read.Content->Stations.size(), 1U);
    EXPECT_EQ(read.Content->Everywhere.size(), 1U);
}

TEST(DirectoryReading, WhatIsLeftOutLeavesItsNameToTheNextOne) {
    const std::string club = ClubServer;
    const std::string noServer = "{'frequency': 122800000, 'voice': {'server': 'clb'}}";
    const std::string unicom = "{'frequency': 122800000, 'voice': {'server': 'club'}}";
    const std::string abroad = "'latDeg': 91, 'lonDeg': 8";
    const ReadText read = ReadDirectory(DirectoryWith(
        "'club': {'software': 'engine'},\n" + club,
        StationText("EDDF_TWR", 118300, "", abroad) + ",\n" +
            StationOf(Transceivers("'frequency': 118300000, " + std::string(Place)) + ", 'voice': {'server': 'clb'}") +
            ",\n" + StationText("EDDF_TWR", 118700) + ",\n" + StationText("EDDF_TWR", 119100),
        noServer + ",\n" + unicom));
    EXPECT_EQ(Told(read),
              "2: servers.club.server: It is missing.\n"
              "4: stations[0].transceivers[0].latDeg: 91 is no latitude: -90 to 90 degrees.\n"
              "5: stations[1].voice.server: No server is called \"clb\".\n"
              "7: stations[3].callsign: \"EDDF_TWR\" stands on line 6 already.\n"
              "8: everywhere[0].voice.server: No server is called \"clb\".\n");
    ASSERT_EQ(read.Content->Stations.size(), 1U);
    EXPECT_EQ(read.Content->Stations[0].Transceivers.at(0).Kilohertz, 118700);
    EXPECT_EQ(read.Content->Everywhere.size(), 1U);
    EXPECT_EQ(read.Content->Servers.at("club").Software, TeamSpeakHost);
}

TEST(DirectoryReading, AWrongSectionIsToldOnce) {
    const ReadText read =
        ReadDirectory(Json("{'format': 'orvelle-directory/1',\n'servers': {" + std::string(ClubServer) +
                           "},\n'stations': {'a': 1, 'b': 2},\n'everywhere': 7,\n'name': null}"));
    EXPECT_EQ(Told(read),
              "3: stations: A list is expected here, not an object.\n"
              "4: everywhere: A list is expected here, not a number.\n"
              "5: name: A text is expected here, not null.\n");
    EXPECT_TRUE(read.Content);
}

TEST(DirectoryReading, WhatIsNoDirectoryGivesNone) {
    const std::string servers = "'servers': {" + std::string(ClubServer) + "}";
    for (const auto& [text, told] : std::vector<std::pair<std::string, std::string>>{
             {"{" + servers + "}", "1: format: It is missing.\n"},
             {"{'format': 'orvelle-directory/1'}", "1: servers: It is missing.\n"},
             {"{'format': 'orvelle-directory/2', " + servers + "}",
              "1: format: \"orvelle-directory/2\" is not known here; \"orvelle-directory/1\" is.\n"},
             {"{'format': 1, " + servers + "}", "1: format: A text is expected here, not a number.\n"},
             {"[]", "1: : A directory is one JSON object, in braces.\n"},
             {"7", "1: : A directory is one JSON object, in braces.\n"},
             {"", "1: : The text ends here, before it is complete.\n"},
             {"<!doctype html>", "1: : This is no JSON: < can't stand here.\n"}}) {
        const ReadText read = ReadDirectory(Json(text));
        EXPECT_EQ(Told(read), told) << text;
        EXPECT_FALSE(read.Content) << text;
    }
}

TEST(DirectoryReading, NumbersThatJsonDoesNotKnowAreToldByTheirField) {
    for (const char* number : {"NaN", "Infinity", "-Infinity", "+1", "01", "1,5", "0x1F", ".5"}) {
        const ReadText read = ReadDirectory(DirectoryWith(
            ClubServer, StationText("A", 118300, "", "\n'latDeg': " + std::string(number) + ", 'lonDeg': 1")));
        EXPECT_FALSE(read.Content) << number;
        ASSERT_EQ(read.Faults.size(), 1U) << number;
        EXPECT_EQ(read.Faults[0].Line, 4U) << number;
        EXPECT_EQ(read.Faults[0].Field, "stations[0].transceivers[0].latDeg") << number;
    }
    const ReadText read =
        ReadDirectory(DirectoryWith(ClubServer, StationText("A", 118300, "", "'latDeg': 1e999\n, 'lonDeg': 1")));
    EXPECT_EQ(Told(read), "3: stations[0].transceivers[0].latDeg: The number is too large.\n");
}

}  // namespace
}  // namespace orvelle::directory
