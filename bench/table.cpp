#include "bench/table.h"

#include "game/deal.h"
#include "game/drops.h"
#include "game/tablet.h"
#include "game/undo.h"
#include "platform/random.h"
#include "settings/settings.h"
#include "state/variables.h"
#include "ui/program.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

constexpr int drops_per_turn = 50;
constexpr int drops_per_deal = 5000;
constexpr int window_width = 1065;

// Every image of the main window that a card could be dropped on.
std::vector<Image*> visible_images(bool faces_only) {
    std::vector<Image*> images;
    for (Widget* widget : frmcards.widgets()) {
        if (widget->kind() != WidgetKind::image || !widget->visible()) continue;
        auto* image = static_cast<Image*>(widget);
        if (!faces_only || image->drag_mode() == DragMode::automatic) images.push_back(image);
    }
    return images;
}

}  // namespace

Table::Table() {
    use_store(&store_);
    save_setting(key_show_message, "False");
    save_setting(key_anamate, "False");
    random_generator().replay(1);
    start_program(store_);
}

Table::~Table() { end_program(); }

void RandomPlay::drop() {
    const bool turns = drops_ % drops_per_turn == 0;
    if (drops_ % drops_per_deal == 0) new_game();
    if (turns) next_tablet_card();
    // What can be seen changes with a turn and with every move that was made.
    if (turns || faces_.empty()) {
        faces_ = visible_images(true);
        targets_ = visible_images(false);
    }
    Image* source = faces_[engine_() % faces_.size()];
    const Image* target = targets_[engine_() % targets_.size()];
    const int before = undo_count();
    drop_on_image(target->index(), *source, static_cast<float>(engine_() % window_width));
    ++drops_;
    if (undo_count() == before) return;
    ++accepted_;
    faces_.clear();
}

void fill_undo_list() {
    RandomPlay play;
    for (int drop = 0; undo_count() < most_undo_records; ++drop) {
        play.drop();
        if (drop % 8 == 0) next_tablet_card();
    }
}

}  // namespace tarnwick
