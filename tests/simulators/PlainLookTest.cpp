// The look-up against a plain one, written from the rule's words alone, that looks at every station and knows no index:
// at random places, at the poles and on both sides of the date line, with and without a station that is held.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

#include "simulators/directory/StationIndex.h"

namespace orvelle::directory {
namespace {

using simulators::Place;

// By haversines, in nautical miles.
double Apart(double latitude1, double longitude1, double latitude2, double longitude2) {
    const double degree = std::numbers::pi / 180;
    const double across = std::sin((latitude2 - latitude1) * degree / 2);
    const double along = std::sin((longitude2 - longitude1) * degree / 2);
    const double haversine =
        across * across + std::cos(latitude1 * degree) * std::cos(latitude2 * degree) * along * along;
    return 2 * 3440.065 * std::asin(std::sqrt(std::min(1.0, haversine)));
}

double Reach(const Station& station, const Transceiver& transceiver, double altitude) {
    const double feet = std::max(0.0, transceiver.Height / 0.3048);
    double reach = 1.23 * (std::sqrt(std::max(0.0, altitude)) + std::sqrt(feet));
    if (reach < 20) reach = 20;
    if (station.Range && *station.Range < reach) reach = *station.Range;
    return reach;
}

struct Found {
    Reason Why = Reason::NotListed;
    std::string Station;
    double Distance = 0;
};

Found PlainLook(const Directory& directory, int kilohertz, const Place& place, const std::string& held) {
    Found inRange;
    Found any;
    double least = 1e9;
    double leastOfAny = 1e9;
    for (const Station& station : directory.Stations) {
        for (const Transceiver& transceiver : station.Transceivers) {
            if (transceiver.Kilohertz != kilohertz) continue;
            const double distance = Apart(place.Latitude, place.Longitude, transceiver.Latitude, transceiver.Longitude);
            const double reach = Reach(station, transceiver, place.Altitude);
            if (distance < leastOfAny) {
                leastOfAny = distance;
                any = {Reason::NoneInRange, station.Callsign, distance};
            }
            const double counted = station.Callsign == held ? distance / 1.1 : distance;
            if (counted > reach || counted >= least) continue;
            least = counted;
            inRange = {distance > reach ? Reason::HeldStation : Reason::Station, station.Callsign, distance};
        }
    }
    if (inRange.Why != Reason::NotListed) return inRange;
    for (const EverywhereChannel& channel : directory.Everywhere)
        if (channel.Kilohertz == kilohertz) return {Reason::Everywhere, "", 0};
    return any;
}

class PlainLookTest : public testing::Test {
protected:
    double Between(double least, double greatest) {
        return std::uniform_real_distribution<double>(least, greatest)(random);
    }
    int Whole(int least, int greatest) { return std::uniform_int_distribution<int>(least, greatest)(random); }

    // Some of the corners of the earth among many others.
    double Latitude() { return Whole(0, 9) == 0 ? (Whole(0, 1) == 0 ? 1 : -1) * Between(88, 90) : Between(-90, 90); }
    double Longitude() {
        return Whole(0, 9) == 0 ? (Whole(0, 1) == 0 ? 1 : -1) * Between(179, 180) : Between(-180, 180);
    }

    std::shared_ptr<Directory> Made(int stations, int channels) {
        auto directory = std::make_shared<Directory>();
        for (int number = 0; number < stations; ++number) {
            Station station{"S" + std::to_string(number), {}, std::nullopt, {"club", std::nullopt}};
            if (Whole(0, 1) == 0) station.Range = Between(1, 400);
            for (int count = Whole(1, 3); count > 0; --count)
                station.Transceivers.push_back(
                    {118000 + 25 * Whole(0, channels - 1), Latitude(), Longitude(), Between(-100, 3000)});
            directory->Stations.push_back(std::move(station));
        }
        directory->Everywhere.push_back({118000, {"club", std::nullopt}});
        return directory;
    }

    void Compare(const Directory& directory, const StationIndex& index, int channels, int places) {
        std::map<Reason, int> reasons;
        for (int number = 0; number < places; ++number) {
            const int kilohertz = 118000 + 25 * Whole(0, channels - 1);
            const Place place{Latitude(), Longitude(), Between(-1000, 45'000)};
            const Choice first = index.Choose(kilohertz, place, {});
            const Found plain = PlainLook(directory, kilohertz, place, "");
            Expect(first, plain, place);
            ++reasons[first.Why];
            // A little farther on, with that one held.
            const bool isHeld = first.Why == Reason::Station;
            const Place next{std::clamp(place.Latitude + Between(-1, 1), -90.0, 90.0), place.Longitude + Between(-1, 1),
                             place.Altitude * Between(0.5, 1)};
            const Choice second = index.Choose(kilohertz, next, first);
            Expect(second, PlainLook(directory, kilohertz, next, isHeld ? first.Station : ""), next);
            ++reasons[second.Why];
        }
        for (const Reason reason : {Reason::Station, Reason::HeldStation, Reason::NoneInRange, Reason::Everywhere})
            EXPECT_GT(reasons[reason], 0) << static_cast<int>(reason);
    }

    static void Expect(const Choice& choice, const Found& plain, const Place& place) {
        EXPECT_EQ(choice.Why, plain.Why) << place.Latitude << " " << place.Longitude;
        EXPECT_EQ(choice.Station, plain.Station) << place.Latitude << " " << place.Longitude;
        EXPECT_NEAR(choice.Distance.value_or(0), plain.Distance, 1e-4);
    }

    std::mt19937 random{12345};
};

TEST_F(PlainLookTest, ManyChannels) {
    const auto directory = Made(20'000, 40);
    const StationIndex index({directory});
    Compare(*directory, index, 40, 700);
}

TEST_F(PlainLookTest, FewStationsFarApart) {
    const auto directory = Made(300, 2);
    const StationIndex index({directory});
    Compare(*directory, index, 2, 1000);
}

}  // namespace
}  // namespace orvelle::directory
