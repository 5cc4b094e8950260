// What a key event costs that concerns one row, whatever the number of rows. The ratios of the rows' numbers are the
// figure: an event must cost what the rows that it concerns cost.
#include <benchmark/benchmark.h>

#include "bench/SilentPeers.h"
#include "panel/FrmOrvelle.h"
#include "panel/MappingTable.h"

namespace orvelle {

namespace {

std::string RowText(Long row) { return "Key " + std::to_string(row); }

// A loaded panel with `rows` push rows in each table, each with a text of its own.
struct FilledPanel {
    explicit FilledPanel(Long rows) {
        Panel.Show();
        for (ListView* list : {&Panel.ListJoyToKey, &Panel.ListKeyToKey})
            for (Long row = 1; row <= rows; ++row) {
                list->AddRow(RowText(row));
                list->SetSubItem(row, ToggleColumn, "Push");
                list->SetSubItem(row, KeyScanColumn, "29+46");
            }
    }

    SilentPeers Peers;
    FrmOrvelle Panel{Peers.Outside()};
};

void KeyPressAndReleaseOneRow(benchmark::State& state) {
    FilledPanel filled(static_cast<Long>(state.range(0)));
    const std::string text = RowText(static_cast<Long>(state.range(0)) / 2);
    for (auto iteration : state) {
        filled.Peers.Velmarc.FSKeyDown(false, true, text, text);
        filled.Peers.Velmarc.FSKeyUp(0, 0, text, "");
    }
    if (!filled.Panel.ListKeyToKey.MarkedRows().empty()) state.SkipWithError("a row is still held down");
}
BENCHMARK(KeyPressAndReleaseOneRow)->Arg(10)->Arg(1000)->Arg(100000);

void ButtonPressAndReleaseOneRow(benchmark::State& state) {
    FilledPanel filled(static_cast<Long>(state.range(0)));
    const std::string text = RowText(static_cast<Long>(state.range(0)) / 2);
    for (auto iteration : state) {
        filled.Peers.Velmarc.FSJoyDown(0, 0, text, "");
        filled.Peers.Velmarc.FSJoyUp(0, 0, text, "");
    }
    if (!filled.Panel.ListJoyToKey.MarkedRows().empty()) state.SkipWithError("a row is still held down");
}
BENCHMARK(ButtonPressAndReleaseOneRow)->Arg(10)->Arg(1000)->Arg(100000);

}  // namespace

}  // namespace orvelle
