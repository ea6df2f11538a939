// Speed of the game itself, headless.

#include <benchmark/benchmark.h>

#include "bench/table.h"
#include "game/deal.h"
#include "game/undo.h"
#include "state/variables.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

void dispatched_drops(benchmark::State& state) {
    const Table table;
    RandomPlay play;
    for (auto _ : state) play.drop();
    state.SetItemsProcessed(play.drops());
    state.counters["accepted"] = static_cast<double>(play.accepted()) / static_cast<double>(play.drops());
}
BENCHMARK(dispatched_drops);

void deal_new_game(benchmark::State& state) {
    const Table table;
    for (auto _ : state) new_game();
}
BENCHMARK(deal_new_game)->Unit(benchmark::kMicrosecond);

void relayout_of_the_board(benchmark::State& state) {
    const Table table;
    int width = 1200;
    for (auto _ : state) {
        frmcards.resize({width, 1014});
        width = 2401 - width;
    }
}
BENCHMARK(relayout_of_the_board)->Unit(benchmark::kMicrosecond);

void undo_of_a_full_list(benchmark::State& state) {
    const Table table;
    for (auto _ : state) {
        state.PauseTiming();
        new_game();
        fill_undo_list();
        state.ResumeTiming();
        while (undo_count() > 0) do_undo();
    }
}
BENCHMARK(undo_of_a_full_list)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tarnwick
