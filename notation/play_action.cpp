#include "notation/play_action.h"

#include <stdexcept>

#include "board/display.h"
#include "state/cards.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

constexpr float near_upper_edge = 5;

float middle_of(const Image& image) { return image.width() / 2; }

void drag(const Action& action) {
    const Image& card = top_image(action.source);
    const bool is_card = card.index() >= first_face_image && card.index() <= last_face_image;
    if (!is_card) throw std::invalid_argument("there is no card to drag");
    drag_image(card, top_image(action.target), static_cast<float>(action.offset));
}

}  // namespace

void drag_image(const Image& from, const Image& to, float offset) {
    Mouse& mouse = frmcards.mouse();
    mouse.press(from.left() + middle_of(from), from.top() + near_upper_edge);
    const float x = to.left() + offset;
    const float y = to.top() + near_upper_edge;
    mouse.move(x, y);
    mouse.release(x, y);
}

void click_image(const Image& image, float offset) {
    frmcards.mouse().press(image.left() + offset, image.top() + near_upper_edge);
    frmcards.mouse().release(image.left() + offset, image.top() + near_upper_edge);
}

void play_action(const Action& action) {
    switch (action.kind) {
        case ActionKind::deal:
            throw std::invalid_argument("a deal begins a game");
        case ActionKind::turn: {
            const Image& stock = frmcards.Image1(stock_image);
            return click_image(stock, middle_of(stock));
        }
        case ActionKind::drag:
            return drag(action);
        case ActionKind::undo:
            return frmcards.mnuUndo.choose();
        case ActionKind::restart:
            return frmcards.mnuRestart.choose();
    }
}

}  // namespace tarnwick
