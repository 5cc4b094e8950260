// What is hardly meant in a directory is told, and is no mistake.
#include <gtest/gtest.h>

#include "simulators/directory/DirectoryReading.h"
#include "tests/simulators/DirectoryText.h"

namespace orvelle::directory {
namespace {

const std::string Otherwise = ",\n 'otherwise': {'server': 'club'}";

std::string Oddities(const std::string& text) {
    const ReadText read = ReadDirectory(text);
    EXPECT_EQ(read.FaultCount, 0U) << (read.Faults.empty() ? "" : read.Faults[0].Sentence);
    std::string told;
    for (const Fault& oddity : FindOddities(read))
        told += std::to_string(oddity.Line) + ": " + oddity.Field + ": " + oddity.Sentence + "\n";
    return told;
}

TEST(DirectoryOddities, AnOrdinaryDirectoryHasNone) {
    EXPECT_EQ(Oddities(DirectoryWith(ClubServer, StationText("EDDF_TWR", 118300),
                                     "{'frequency': 122800000, 'voice': {'server': 'club', 'channel': '{mhz}'}}",
                                     Otherwise + ", '$schema': 'orvelle-directory-1.schema.json'")),
              "");
}

TEST(DirectoryOddities, StationsOfOneChannelThatOverlapAreBothNamed) {
    const auto stations = [](double longitude, const std::string& more) {
        return DirectoryWith(
            ClubServer, StationText("EDDF_TWR", 118300, "", "'latDeg': 0, 'lonDeg': 0, 'heightMslM': 0") + ",\n" +
                            StationText("EDFE_TWR", 118300, more,
                                        "'latDeg': 0, 'lonDeg': " + std::to_string(longitude) + ", 'heightMslM': 0"));
    };
    // Each reaches 20 nautical miles to the ground.
    EXPECT_EQ(
        Oddities(stations(0.65, "")),
        "3: stations[0]: The range of EDDF_TWR overlaps on 118.300 with that of EDFE_TWR, 39 nautical miles away; "
        "the nearer one counts.\n");
    EXPECT_EQ(Oddities(stations(0.68, "")), "");
    EXPECT_EQ(Oddities(stations(0.65, ", 'rangeNm': 10")), "");
    EXPECT_NE(Oddities(stations(1.6, ", 'rangeNm': 100")), "");
}

TEST(DirectoryOddities, StationsThatLeadToOneVoiceChannelMayOverlap) {
    const std::string place = ", 'transceivers': [{'frequency': 118300000, 'latDeg': 0, 'lonDeg': 0}], 'voice': ";
    const auto stations = [&place](const std::string& channel) {
        return DirectoryWith(ClubServer, "{'callsign': 'EDDF_N_TWR'" + place + channel + "},{'callsign': 'EDDF_S_TWR'" +
                                             place + channel + "}");
    };
    EXPECT_EQ(Oddities(stations("{'server': 'club'}")), "");
    EXPECT_EQ(Oddities(stations("{'server': 'club', 'channel': '{airport}'}")), "");
    EXPECT_NE(Oddities(stations("{'server': 'club', 'channel': '{station}'}")), "");
}

TEST(DirectoryOddities, AServerThatNobodyNamesIsTold) {
    const char* const servers =
        "'club': {'software': 'engine', 'server': 'a'},\n 'my old one': {'software': 'engine', 'server': 'a'}";
    EXPECT_EQ(Oddities(DirectoryWith(servers, "", "", Otherwise)),
              "3: servers[\"my old one\"]: No entry names this server.\n");
}

TEST(DirectoryOddities, ARecordingThatIsAFileIsTold) {
    for (const char* server : {"x", "file:///etc/passwd", "/srv/atis.ogg"})
        EXPECT_EQ(
            Oddities(DirectoryWith("'club': {'software': 'atis', 'server': '" + std::string(server) + "'}", "", "",
                                   Otherwise)),
            "2: servers.club: A recording that is no address of the web is a file of each pilot's own computer.\n");
    EXPECT_EQ(Oddities(DirectoryWith("'club': {'software': 'atis', 'server': 'http://h/a'}", "", "", Otherwise)), "");
}

TEST(DirectoryOddities, PlaceholdersThatAreEmptyOrNoneAreTold) {
    EXPECT_EQ(Oddities(DirectoryWith(ClubServer, "",
                                     "{'frequency': 122800000, 'voice': {'server': 'club', 'channel': "
                                     "'{callsign}{airport}'}}",
                                     ",\n 'otherwise': {'server': 'club', 'channel': '{frequency} {} { mhz }'}")),
              "4: everywhere[0]: {airport} is always empty here.\n"
              "5: otherwise: {frequency} is no placeholder; it stays as it stands.\n");
    EXPECT_EQ(Oddities(DirectoryWith("'club': {'software': 'engine', 'server': '{station}.example', 'password': "
                                     "'{callsign}'}",
                                     "", "", Otherwise)),
              "2: servers.club: Nothing is filled in in a password.\n"
              "5: otherwise: {station} is always empty here.\n");
}

TEST(DirectoryOddities, AFrequencyThatNoChannelBearsIsTold) {
    EXPECT_EQ(Oddities(DirectoryWith(ClubServer, StationText("A", 118322) + ",\n" + StationText("B", 118345) + "," +
                                                     StationText("C", 118320) + "," + StationText("D", 118340))),
              "3: stations[0]: 118.322 is not the name of any channel.\n"
              "4: stations[1]: 118.345 is not the name of any channel.\n");
}

TEST(DirectoryOddities, MembersThatMeanNothingAreToldOnceForEachName) {
    const std::string station = "'latDeg': 1, 'lonDeg': 1, 'id': 7";
    EXPECT_EQ(Oddities(DirectoryWith(ClubServer, StationText("A", 118300, "", station) + ",\n" +
                                                     StationText("B", 118700, ", 'name': 'Tower'", station))),
              "3: stations[0].transceivers[0].id: It means nothing here, nor in 1 more entries.\n"
              "4: stations[1].name: It means nothing here.\n");
}

}  // namespace
}  // namespace orvelle::directory
