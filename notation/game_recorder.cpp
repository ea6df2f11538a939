#include "notation/game_recorder.h"

#include <stdexcept>

#include "game/drop_dispatch.h"
#include "game/tablet.h"
#include "notation/outside_text.h"
#include "platform/desktop.h"
#include "platform/random.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

Action drag_of(int target, const Image& source, float x) {
    const Drop drop = drop_of(source, frmcards.Image1(target), x);
    Action action;
    action.kind = ActionKind::drag;
    action.source = drop.source;
    action.target = drop.first;
    // Cards may be scaled on the player's screen: all that counts of the place is which neighbour it is near
    // to.
    if (drop.second != none) {
        action.offset = drop.second < drop.first ? Action::near_left_edge : Action::near_right_edge;
    }
    return action;
}

}  // namespace

void GameRecorder::begin() {
    write_new_deal();
    const ImageEvents events = frmcards.image_events;
    frmcards.image_events.click = [this, events](int index) {
        if (index == stock_image) write({.kind = ActionKind::turn});
        events.click(index);
    };
    frmcards.image_events.drop = [this, events](int index, Image& source, float x, float y) {
        const Action action = drag_of(index, source, x);
        if (action.target != none) write(action);
        events.drop(index, source, x, y);
    };
    frmcards.on_key_down = [this, key_down = frmcards.on_key_down](int key_code) {
        if (key_code == space_key && !tablet_is_turned_for_good()) write({.kind = ActionKind::turn});
        key_down(key_code);
    };
    const auto record_choices = [this](MenuEntry& entry, ActionKind kind) {
        entry.on_click = [this, kind, choose = entry.on_click] {
            write({.kind = kind});
            choose();
        };
    };
    record_choices(frmcards.mnuUndo, ActionKind::undo);
    record_choices(frmcards.mnuRestart, ActionKind::restart);
    frmcards.mnuNew.on_click = [this, choose = frmcards.mnuNew.on_click] {
        choose();
        write_new_deal();
    };
}

void GameRecorder::write_new_deal() {
    if (random_generator().seedings() == deals_) return;
    deals_ = random_generator().seedings();
    write({.kind = ActionKind::deal, .deal = random_generator().seed()});
}

void GameRecorder::write(const Action& action) {
    if (action.kind != ActionKind::deal) write_new_deal();
    if (!stream_) return;
    try {
        if (!(*stream_ << text_of(action) << std::endl)) {
            throw std::runtime_error("The record of the game could not be written");
        }
    } catch (const std::runtime_error& failure) {
        stream_ = nullptr;
        desktop().after_event([happened = printable(failure.what())] {
            desktop().notify({"Tarnwick", happened + ": it ends here, and the game goes on without it."});
        });
    }
}

}  // namespace tarnwick
