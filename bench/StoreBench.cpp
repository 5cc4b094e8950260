// What the tables cost on the real store: Apply, which rewrites the whole section, and the load, by the number of rows.
// The ratios of 1,000 rows to 10 are the figure.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "adapters/store/SqliteStore.h"
#include "bench/MappingRows.h"
#include "bench/SilentPeers.h"
#include "panel/FrmOrvelle.h"
#include "tests/shared/HandLoop.h"

namespace orvelle {

namespace {

// A store of its own on the disk, gone with the object.
class StoreFolder {
public:
    StoreFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "orvelle-bench-XXXXXX").string();
        path = mkdtemp(name.data());
    }
    StoreFolder(const StoreFolder&) = delete;
    StoreFolder& operator=(const StoreFolder&) = delete;
    ~StoreFolder() { std::filesystem::remove_all(path); }

    store::SqliteStore Open() {
        return {loop, path / "settings.sqlite", [](const std::string&) {}};
    }
    // Rows in both tables.
    void Fill(Long rows) {
        store::SqliteStore store = Open();
        SaveMappingRows(store, rows);
    }

private:
    HandLoop loop;
    std::filesystem::path path;
};

// One option changed, as by a tick of the user's: what a handler waits for the disk.
void WriteOneValue(benchmark::State& state) {
    StoreFolder folder;
    folder.Fill(static_cast<Long>(state.range(0)));
    store::SqliteStore store = folder.Open();
    Long value = 0;
    for (auto iteration : state) {
        store.SaveSettingLong("OrvelleCP", "Topmost", ++value);
        store.HandlerEnded();
    }
}
BENCHMARK(WriteOneValue)->Arg(10)->Arg(1000)->Unit(benchmark::kMicrosecond);

// The row in the middle goes from push to toggle and back.
void ApplyRow(benchmark::State& state) {
    StoreFolder folder;
    folder.Fill(static_cast<Long>(state.range(0)));
    store::SqliteStore store = folder.Open();
    SilentPeers peers;
    FrmOrvelle panel(peers.Outside(store, store));
    panel.Show();
    peers.Velmarc.Connected();
    panel.ListKeyToKey.UserClickRow(static_cast<Long>(state.range(0)) / 2);
    for (auto iteration : state) {
        panel.K2KToggle.UserCheck(1 - panel.K2KToggle.Value());
        panel.K2KApply.UserClick();
    }
    if (panel.ListKeyToKey.Count() != state.range(0)) state.SkipWithError("rows came or went");
}
BENCHMARK(ApplyRow)->Arg(10)->Arg(1000)->Unit(benchmark::kMicrosecond);

void LoadWithRows(benchmark::State& state) {
    StoreFolder folder;
    folder.Fill(static_cast<Long>(state.range(0)));
    for (auto iteration : state) {
        store::SqliteStore store = folder.Open();
        SilentPeers peers;
        FrmOrvelle panel(peers.Outside(store, store));
        panel.Show();
        if (panel.ListJoyToKey.Count() != state.range(0)) state.SkipWithError("the rows were not read");
    }
}
BENCHMARK(LoadWithRows)->Arg(10)->Arg(1000)->Unit(benchmark::kMicrosecond);

}  // namespace

}  // namespace orvelle
