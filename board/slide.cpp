#include "board/slide.h"

#include <cmath>

#include "board/display.h"
#include "state/variables.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

// Of `animation`.
constexpr int sliding_picture = 2;  // the card that slides
constexpr int beneath_sliding = 3;  // the pile's card that moves aside beneath it, or none
constexpr int source = 4;           // the pile that it has started from
constexpr int destination = 5;      // the ace pile 0 to 3 that it goes to
constexpr int steps_to_go = 6;
constexpr int wins_game = 7;  // 1: the game ends with this slide
constexpr int no_card = 9999;

void (*on_arrival)() = nullptr;

// How many steps a distance in pixels takes beyond the least number.
int steps_for(float distance) { return static_cast<int>(std::abs(distance) / (175 * x_scale)); }

// One n-th of the way that is left: with n steps to go, the last one arrives exactly.
float step_towards(float target, float from, int steps) {
    return from + (target - from) / static_cast<float>(steps);
}

void move_card(int p, int steps) {
    Image& card = frmcards.Image1(animation(sliding_picture));
    card.bring_to_front();
    card.move(step_towards(frmcards.Shape1(p).left(), card.left(), steps),
              step_towards(top_row, card.top(), steps));
}

void move_card_beneath(int p, int steps) {
    if (animation(beneath_sliding) == no_card) return;
    Image& beneath = frmcards.Image1(animation(beneath_sliding));
    const float target = static_cast<float>(beneath_card_left(p)) * x_scale;
    beneath.move(step_towards(target, beneath.left(), steps), beneath.top());
}

void tick() {
    const int steps = animation(steps_to_go);
    move_card(pile_of_slide(), steps);
    move_card_beneath(pile_of_slide(), steps);
    animation(steps_to_go) -= 1;
    if (animation(steps_to_go) <= 0) on_arrival();
}

}  // namespace

void attach_slide(void (*arrived)()) {
    on_arrival = arrived;
    frmcards.Timer3.on_tick = tick;
}

int slide_steps_from_tablet(int p) { return 2 * p + 3; }

int slide_steps_from_column(int p) {
    const Image& card = frmcards.Image1(aces(p, picture_field));
    const Outline& outline = frmcards.Shape1(p);
    return steps_for(card.left() - outline.left()) + 3 + steps_for(card.top() - outline.top());
}

void begin_slide(int p, bool alone, int steps) {
    animation(sliding_picture) = aces(p, picture_field);
    animation(beneath_sliding) = alone ? no_card : int{aces(p, beneath_picture_field)};
    animation(source) = drag_source;
    animation(destination) = p;
    animation(steps_to_go) = steps;
    frmcards.Timer3.set_enabled(true);
}

void keep_sliding_card_in_front() { frmcards.Image1(animation(sliding_picture)).bring_to_front(); }

bool slide_is_under_way() { return frmcards.Timer3.enabled(); }

bool is_sliding(const Image& image) {
    return slide_is_under_way() && image.index() == animation(sliding_picture);
}

int pile_of_slide() { return animation(destination); }

int time_to_next_slide_step(const Image& image) {
    const bool moves =
        image.index() == animation(sliding_picture) || image.index() == animation(beneath_sliding);
    return slide_is_under_way() && moves ? frmcards.Timer3.interval() : 0;
}

void let_slide_win() { animation(wins_game) = 1; }

bool slide_wins() { return slide_is_under_way() && animation(wins_game) == 1; }

void stop_slide() { frmcards.Timer3.set_enabled(false); }

void land_slide() {
    stop_slide();
    animation(wins_game) = 0;
    redisplay_aces(pile_of_slide(), animation(beneath_sliding) == no_card ? single_card_mode : stacked_mode);
}

void reset_slide() { animation(wins_game) = 0; }

}  // namespace tarnwick
