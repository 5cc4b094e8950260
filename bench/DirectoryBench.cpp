// What a directory of 20,000 stations costs: reading its text, and the look-up of one station, among the stations of
// all channels or of one that all share, in range of some, of none, and with all of them in one spot.
#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdint>
#include <memory>
#include <random>
#include <string>

#include "simulators/directory/DirectoryReading.h"
#include "simulators/directory/StationIndex.h"

namespace orvelle::directory {

namespace {

constexpr int Stations = 20'000;
constexpr int Channels = 700;

enum class Spread { WholeEarth, OneParallel, OneMeridian, OneSpot };

Directory Made(int channels, Spread spread) {
    std::mt19937 random{1};
    std::uniform_real_distribution<double> latitude(-60, 70);
    std::uniform_real_distribution<double> longitude(-180, 180);
    Directory directory;
    directory.Servers["club"] = {2, "voice.example.org:8767", "pilot", "", "{mhz}"};
    for (int number = 0; number < Stations; ++number) {
        const double north = spread == Spread::WholeEarth || spread == Spread::OneMeridian ? latitude(random) : 50;
        const double east = spread == Spread::WholeEarth || spread == Spread::OneParallel ? longitude(random) : 8;
        Station station{"S" + std::to_string(number) + "_TWR", {}, 50, {"club", std::nullopt}};
        station.Transceivers.push_back({118000 + 25 * (number % channels), north, east, 100});
        directory.Stations.push_back(std::move(station));
    }
    return directory;
}

// As an operator's export would be laid out: a line for each station, some 250 bytes long.
std::string TextOf(const Directory& directory) {
    std::string text =
        "{\"format\": \"orvelle-directory/1\", \"name\": \"Club\",\n\"servers\": {\"club\": {\"software\": "
        "\"teamspeak\", \"server\": \"voice.example.org:8767\", \"login\": \"pilot\"}},\n\"stations\": [\n";
    const char* parting = "";
    for (const Station& station : directory.Stations) {
        const Transceiver& transceiver = station.Transceivers.front();
        text += parting + ("{\"callsign\": \"" + station.Callsign) +
                "\", \"transceivers\": [{\"id\": 0, \"frequency\": " + std::to_string(transceiver.Kilohertz) +
                "000, \"latDeg\": " + std::to_string(transceiver.Latitude) +
                ", \"lonDeg\": " + std::to_string(transceiver.Longitude) +
                ", \"heightMslM\": 100.0, \"heightAglM\": 10.0}], \"rangeNm\": 50, \"voice\": {\"server\": \"club\", "
                "\"channel\": \"{station}\"}}";
        parting = ",\n";
    }
    return text + "\n]}\n";
}

void ReadTwentyThousandStations(benchmark::State& state) {
    const std::string text = TextOf(Made(Channels, Spread::WholeEarth));
    std::size_t faults = 0;
    std::size_t stations = 0;
    for (auto iteration : state) {
        const ReadText read = ReadDirectory(text);
        faults += read.FaultCount;
        stations = read.Content ? read.Content->Stations.size() : 0;
    }
    if (faults != 0 || stations != Stations) state.SkipWithError("it is not read");
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}
BENCHMARK(ReadTwentyThousandStations)->Unit(benchmark::kMillisecond);

void IndexTwentyThousandStations(benchmark::State& state) {
    const auto directory = std::make_shared<const Directory>(Made(Channels, Spread::WholeEarth));
    for (auto iteration : state) benchmark::DoNotOptimize(StationIndex({directory}));
}
BENCHMARK(IndexTwentyThousandStations)->Unit(benchmark::kMillisecond);

// At places all over the earth, or all near one spot.
void Look(benchmark::State& state, int channels, Spread spread, double altitude, Reason usual) {
    const StationIndex index({std::make_shared<const Directory>(Made(channels, spread))});
    std::mt19937 random{2};
    std::uniform_real_distribution<double> latitude(-60, 70);
    std::uniform_real_distribution<double> longitude(-180, 180);
    std::uniform_real_distribution<double> little(-0.2, 0.2);
    bool isUsual = false;
    int channel = 0;
    Choice held;
    for (auto iteration : state) {
        const bool isNear = spread == Spread::OneSpot || spread == Spread::OneMeridian;
        const simulators::Place place{
            spread == Spread::OneSpot || spread == Spread::OneParallel ? 50 + little(random) : latitude(random),
            isNear ? 8 + little(random) : longitude(random), altitude};
        held = index.Choose(118000 + 25 * (channel++ % channels), place, held);
        isUsual |= held.Why == usual;
    }
    if (!isUsual) state.SkipWithError("nothing was chosen as it should be");
}
BENCHMARK_CAPTURE(Look, AllChannels, Channels, Spread::WholeEarth, 35'000, Reason::NoneInRange);
BENCHMARK_CAPTURE(Look, OneChannel, 1, Spread::WholeEarth, 35'000, Reason::Station);
BENCHMARK_CAPTURE(Look, OneChannelOneParallel, 1, Spread::OneParallel, 35'000, Reason::Station);
BENCHMARK_CAPTURE(Look, OneChannelOneMeridian, 1, Spread::OneMeridian, 35'000, Reason::Station);
BENCHMARK_CAPTURE(Look, OneChannelOneSpot, 1, Spread::OneSpot, 35'000, Reason::Station);

}  // namespace

}  // namespace orvelle::directory
