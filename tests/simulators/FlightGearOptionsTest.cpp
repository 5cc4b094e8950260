#include "simulators/flightgear/FlightGearOptions.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "simulators/flightgear/FlightGearLine.h"
#include "tests/shared/OwnFolder.h"

namespace orvelle::simulators {
namespace {

namespace fs = std::filesystem;

std::string Read(const fs::path& file) {
    std::ifstream opened(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(opened), {}};
}

void Write(const fs::path& file, const std::string& text) {
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << text;
}

struct Home : OwnFolder {
    FlightGearOptions Options(std::uint16_t port = FlightGearLine::UsualPort) const {
        return {Installed, Path / "data", Path / "home", port};
    }
    std::string Both(const std::string& end = "\n") const {
        const auto lines = Options().Lines();
        return lines[0] + end + lines[1] + end;
    }

    const fs::path Installed = FLIGHTGEAR_PACKAGED;
    const fs::path File = Path / "home" / ".fgfsrc";
    const fs::path Copy = Path / "home" / ".fgfsrc.before-orvelle";
};

AircraftOverrides Packaged() {
    AircraftOverrides aircraft;
    EXPECT_EQ(aircraft.Add(fs::path(FLIGHTGEAR_PACKAGED) / "aircraft.json"), "");
    return aircraft;
}

TEST(FlightGearOptionsTest, TheProtocolFileThatIsInstalledIsThatOfTheInstalledAircraft) {
    EXPECT_EQ(Read(fs::path(FLIGHTGEAR_PACKAGED) / "Protocol" / "orvelle.xml"),
              FlightGearProtocol(Packaged().Properties(AircraftOf::FlightGear)));
}

TEST(FlightGearOptionsTest, TheLinesNameTheInstalledFolderAndThePort) {
    const Home home;
    EXPECT_EQ(home.Options(5602).Lines(),
              (std::array<std::string, 2>{std::string("--data=") + FLIGHTGEAR_PACKAGED,
                                          "--generic=socket,out,20,127.0.0.1,5602,udp,orvelle"}));
}

TEST(FlightGearOptionsTest, AircraftOfTheUsersOwnHaveAProtocolFileOfTheirOwn) {
    const Home home;
    AircraftOverrides aircraft;
    Write(home.Path / "aircraft.json", R"({"format": "orvelle-aircraft/1", "aircraft": [{"simulator": "flightgear",
        "names": ["jet"], "heard": [{"property": "/jet/a"}, null]}]})");
    ASSERT_EQ(aircraft.Add(home.Path / "aircraft.json"), "");
    FlightGearOptions options = home.Options();
    EXPECT_EQ(options.Prepare(aircraft), "");
    EXPECT_EQ(options.Lines()[0], "--data=" + (home.Path / "data").string());
    EXPECT_NE(Read(home.Path / "data" / "Protocol" / "orvelle.xml")
                  .find("<type>string</type><format>/jet/a=%s</format><node>/jet/a</node>"),
              std::string::npos);
    ASSERT_EQ(options.Add(), "");
    EXPECT_TRUE(options.AreAdded());

    EXPECT_EQ(options.Prepare(Packaged()), "");
    EXPECT_EQ(options.Lines()[0], std::string("--data=") + FLIGHTGEAR_PACKAGED);
    EXPECT_FALSE(options.AreAdded());
    ASSERT_EQ(options.Add(), "");
    EXPECT_EQ(Read(home.File), home.Both()) << "the line of before was not replaced";
}

TEST(FlightGearOptionsTest, ThereMayBeNoFile) {
    const Home home;
    EXPECT_FALSE(home.Options().AreAdded());
    EXPECT_EQ(home.Options().TakeOut(), "");
    EXPECT_FALSE(fs::exists(home.File));
    EXPECT_EQ(home.Options().Add(), "");
    EXPECT_TRUE(home.Options().AreAdded());
    EXPECT_EQ(Read(home.File), home.Both());
    EXPECT_FALSE(fs::exists(home.Copy));
    EXPECT_EQ(home.Options().TakeOut(), "");
    EXPECT_FALSE(fs::exists(home.File)) << "what was made for the lines goes with them";

    Write(home.File, home.Both() + "\n");
    EXPECT_EQ(home.Options().TakeOut(), "");
    EXPECT_EQ(Read(home.File), "\n") << "the user's own line";
}

TEST(FlightGearOptionsTest, OtherLinesStayByteForByteAndACopyIsKept) {
    std::string large;
    while (large.size() < 1'000'000) large += "# one of many lines\n";
    struct Case {
        std::string Before, Added, TakenOut;
    };
    const Home home;
    for (const auto& [before, added, takenOut] : std::vector<Case>{
             {"", home.Both(), ""},
             {"--aircraft=c172p\n", "--aircraft=c172p\n" + home.Both(), "--aircraft=c172p\n"},
             {"# no end", "# no end\n" + home.Both(), "# no end\n"},
             {"--a\r\n\r\n --b\t\r\n", "--a\r\n\r\n --b\t\r\n" + home.Both("\r\n"), "--a\r\n\r\n --b\t\r\n"},
             {"--a\r\n--b", "--a\r\n--b\r\n" + home.Both("\r\n"), "--a\r\n--b\r\n"},
             {"\xFF\n\n\n", "\xFF\n\n\n" + home.Both(), "\xFF\n\n\n"},
             {"--data=/mine\n--generic=file,out,1,/tmp/a,orvelle\n",
              "--data=/mine\n--generic=file,out,1,/tmp/a,orvelle\n" + home.Both(),
              "--data=/mine\n--generic=file,out,1,/tmp/a,orvelle\n"},
             {large, large + home.Both(), large},
         }) {
        Write(home.File, before);
        fs::remove(home.Copy);
        EXPECT_EQ(home.Options().Add(), "");
        EXPECT_TRUE(Read(home.File) == added) << before.substr(0, 80);
        EXPECT_TRUE(Read(home.Copy) == before) << before.substr(0, 80);
        EXPECT_TRUE(home.Options().AreAdded());
        EXPECT_EQ(home.Options().TakeOut(), "");
        EXPECT_TRUE(fs::exists(home.File)) << before.substr(0, 80);
        EXPECT_TRUE(Read(home.File) == takenOut) << before.substr(0, 80);
        EXPECT_FALSE(home.Options().AreAdded());
    }
}

TEST(FlightGearOptionsTest, AddingAgainChangesNothing) {
    const Home home;
    Write(home.File, "--aircraft=ufo\n");
    EXPECT_EQ(home.Options().Add(), "");
    Write(home.File, Read(home.File) + "--callsign=ORV1\n");
    const std::string before = Read(home.File);
    EXPECT_EQ(home.Options().Add(), "");
    EXPECT_EQ(Read(home.File), before);
    EXPECT_EQ(Read(home.Copy), "--aircraft=ufo\n");
}

TEST(FlightGearOptionsTest, LinesOfOursFromBeforeAreReplaced) {
    const Home home;
    Write(home.File,
          "--data=/opt/old/share/orvellecp/flightgear\n--a\n--generic=socket,out,10,127.0.0.1,5777,udp,orvelle\n"
          "#--data=/opt/old/share/orvellecp/flightgear\n");
    EXPECT_FALSE(home.Options().AreAdded());
    EXPECT_EQ(home.Options().Add(), "");
    EXPECT_EQ(Read(home.File), "--a\n#--data=/opt/old/share/orvellecp/flightgear\n" + home.Both());
    EXPECT_FALSE(fs::exists(home.Copy)) << "a file with lines of ours is not what it was before them";
    EXPECT_EQ(home.Options().TakeOut(), "");
    EXPECT_EQ(Read(home.File), "--a\n#--data=/opt/old/share/orvellecp/flightgear\n");
}

TEST(FlightGearOptionsTest, LinksAreFollowedAndRightsKept) {
    const Home home;
    const fs::path target = home.Path / "dotfiles" / "fgfsrc";
    Write(target, "--aircraft=ufo\n");
    fs::permissions(target, fs::perms(0640));
    fs::create_directories(home.Path / "home");
    fs::create_symlink("../dotfiles/fgfsrc", home.File);
    EXPECT_EQ(home.Options().Add(), "");
    EXPECT_TRUE(fs::is_symlink(home.File));
    EXPECT_EQ(Read(target), "--aircraft=ufo\n" + home.Both());
    EXPECT_EQ(fs::status(target).permissions(), fs::perms(0640));
    EXPECT_EQ(fs::status(home.Copy).permissions(), fs::perms(0640));
    EXPECT_EQ(Read(home.Copy), "--aircraft=ufo\n");
}

TEST(FlightGearOptionsTest, ALinkMayLeadToAFileThatComesOnlyNow) {
    const Home home;
    fs::create_directories(home.Path / "home");
    fs::create_symlink(home.Path / "later", home.File);
    EXPECT_EQ(home.Options().Add(), "");
    EXPECT_TRUE(fs::is_symlink(home.File));
    EXPECT_EQ(Read(home.Path / "later"), home.Both());
    EXPECT_EQ(home.Options().TakeOut(), "");
    EXPECT_TRUE(fs::is_symlink(home.File)) << "the link is the user's";
}

TEST(FlightGearOptionsTest, WhatCantBeReadOrWrittenIsOneSentence) {
    const Home home;
    fs::create_directories(home.File);
    EXPECT_EQ(home.Options().Add(), home.File.string() + " can't be read: it is no plain file.");
    EXPECT_EQ(home.Options().TakeOut(), home.Options().Add());
    fs::remove(home.File);
    fs::create_symlink(home.File, home.File);
    EXPECT_EQ(home.Options().Add(),
              home.File.string() + " can't be read: " + std::generic_category().message(ELOOP) + ".");

    // Nobody may make a file in there, not even root.
    const std::string refused = FlightGearOptions(FLIGHTGEAR_PACKAGED, "/proc", "/proc", 5601).Add();
    EXPECT_TRUE(refused.starts_with("/proc/.fgfsrc can't be written: ")) << refused;
    FlightGearOptions own(home.Path, "/proc", home.Path, 5601);
    EXPECT_TRUE(own.Prepare({}).starts_with("/proc/Protocol/orvelle.xml can't be written: "));
}

}  // namespace
}  // namespace orvelle::simulators
