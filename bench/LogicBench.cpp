// What the logic costs by itself, against peers that do nothing.
#include <benchmark/benchmark.h>

#include "bench/SilentPeers.h"
#include "panel/FrmOrvelle.h"

namespace orvelle {

namespace {

// A panel that is loaded, shown and in a session.
struct RunningPanel {
    RunningPanel() {
        Panel.Show();
        Peers.Tessaly.SessionOpened();
    }

    SilentPeers Peers;
    FrmOrvelle Panel{Peers.Outside()};
};

void RefreshStatus(benchmark::State& state) {
    RunningPanel running;
    for (auto iteration : state) running.Panel.RefreshStatus();
}
BENCHMARK(RefreshStatus);

void ApplyVoiceRoutingNothingChanged(benchmark::State& state) {
    RunningPanel running;
    for (auto iteration : state) running.Panel.ApplyVoiceRouting();
}
BENCHMARK(ApplyVoiceRoutingNothingChanged);

// The transmit selector goes from one radio to the other and back.
void RadioChanged(benchmark::State& state) {
    RunningPanel running;
    SilentTessaly& tessaly = running.Peers.Tessaly;
    for (auto iteration : state) {
        tessaly.TransmitSelection[0] = tessaly.TransmitSelection[0] == '1' ? '2' : '1';
        tessaly.RadioChanged();
    }
    if (running.Panel.Variables().TransmitSelect != tessaly.TransmitSelection)
        state.SkipWithError("the panel didn't follow");
}
BENCHMARK(RadioChanged);

void KeyEventEmptyTables(benchmark::State& state) {
    RunningPanel running;
    const std::string key = "30";
    for (auto iteration : state) running.Peers.Velmarc.FSKeyDown(false, true, key, key);
}
BENCHMARK(KeyEventEmptyTables);

// From nothing to the shown window, and the end of the object.
void Load(benchmark::State& state) {
    SilentPeers peers;
    for (auto iteration : state) {
        FrmOrvelle panel(peers.Outside());
        panel.Show();
    }
}
BENCHMARK(Load);

}  // namespace

}  // namespace orvelle

BENCHMARK_MAIN();
