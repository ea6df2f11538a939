// Speed of the game itself, headless.

#include <benchmark/benchmark.h>

#include <random>
#include <vector>

#include "game/deal.h"
#include "game/drop_dispatch.h"
#include "game/tablet.h"
#include "game/undo.h"
#include "platform/headless.h"
#include "platform/random.h"
#include "settings/settings.h"
#include "state/variables.h"
#include "ui/program.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

// A started program, without help messages and slides: what is left is the dispatch itself.
class Table {
  public:
    Table() {
        use_store(&store_);
        save_setting(key_show_message, "False");
        save_setting(key_anamate, "False");
        random_generator().replay(1);
        start_program(store_);
    }
    ~Table() { end_program(); }

  private:
    HeadlessDesktop desktop_{PixelSize{1280, 1024}};
    MemoryStore store_;
};

// Every image of the main window that a card could be dropped on.
std::vector<Image*> visible_images(bool faces_only) {
    std::vector<Image*> images;
    for (Widget* widget : frmcards.widgets()) {
        if (widget->kind() != WidgetKind::image || !widget->visible()) continue;
        Image* image = static_cast<Image*>(widget);
        if (!faces_only || image->drag_mode() == DragMode::automatic) images.push_back(image);
    }
    return images;
}

// Random play: any face dropped on any image, a turn of the tablet now and then, a new deal for each run.
void dispatched_drops(benchmark::State& state) {
    Table table;
    std::minstd_rand engine(1);
    std::vector<Image*> faces;
    std::vector<Image*> targets;
    std::int64_t drops = 0;
    std::int64_t accepted = 0;
    for (auto _ : state) {
        if (drops % 5000 == 0) new_game();
        if (drops % 50 == 0) next_tablet_card();
        // What can be seen changes with a turn and with every move that was made.
        if (drops % 50 == 0 || faces.empty()) {
            faces = visible_images(true);
            targets = visible_images(false);
        }
        Image* source = faces[engine() % faces.size()];
        Image* target = targets[engine() % targets.size()];
        const int before = undo_count();
        drop_on_image(target->index(), *source, static_cast<float>(engine() % 1065));
        ++drops;
        if (undo_count() == before) continue;
        ++accepted;
        faces.clear();
    }
    state.SetItemsProcessed(drops);
    state.counters["accepted"] = static_cast<double>(accepted) / static_cast<double>(drops);
}
BENCHMARK(dispatched_drops);

void deal_new_game(benchmark::State& state) {
    Table table;
    for (auto _ : state) new_game();
}
BENCHMARK(deal_new_game)->Unit(benchmark::kMicrosecond);

void relayout_of_the_board(benchmark::State& state) {
    Table table;
    int width = 1200;
    for (auto _ : state) {
        frmcards.resize({width, 1014});
        width = 2401 - width;
    }
}
BENCHMARK(relayout_of_the_board)->Unit(benchmark::kMicrosecond);

void undo_of_a_full_list(benchmark::State& state) {
    Table table;
    for (auto _ : state) {
        state.PauseTiming();
        new_game();
        while (undo_count() < most_undo_records) next_tablet_card();
        state.ResumeTiming();
        while (undo_count() > 0) do_undo();
    }
}
BENCHMARK(undo_of_a_full_list)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tarnwick
