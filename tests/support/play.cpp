#include "tests/support/play.h"

#include <algorithm>
#include <sstream>

#include "notation/position_text.h"
#include "platform/random.h"
#include "state/variables.h"
#include "ui/program.h"
#include "windows/frmcards.h"

namespace tarnwick {

Play::~Play() {
    end_program();
    random_generator().stop_replay();
}

void Play::start(std::uint32_t deal) {
    random_generator().replay(deal);
    start_program(store);
}

void Play::start(const std::string& position) {
    save("anamate", "False");
    start();
    set_position(position);
}

void Play::drag_image(const Image& from, const Image& to, float offset) {
    // Near the upper edge: the part of a card that the next one in its column leaves free.
    Mouse& mouse = frmcards.mouse();
    mouse.press(from.left() + middle * card_scale, from.top() + 5);
    mouse.move(to.left() + offset, to.top() + 8);
    mouse.release(to.left() + offset, to.top() + 8);
}

void Play::drag(int from, int to, float offset) { drag_image(top_image(from), top_image(to), offset); }

void Play::drag_slot(int from, int slot, int to, float offset) {
    drag_image(frmcards.Image1(layout(from, slot, column_picture_field)), top_image(to), offset);
}

void Play::click(int pile, float offset) {
    const Image& card = top_image(pile);
    frmcards.mouse().press(card.left() + offset, card.top() + 8);
    frmcards.mouse().release(card.left() + offset, card.top() + 8);
}

void Play::click_stock(int times) {
    const Image& stock = frmcards.Image1(stock_image);
    for (int i = 0; i < times; ++i) {
        frmcards.mouse().press(stock.left() + 9, 20);
        frmcards.mouse().release(stock.left() + 9, 20);
    }
}

void Play::double_click(const Image& image) {
    for (int i = 0; i < 2; ++i) {
        frmcards.mouse().press(image.left() + 9, image.top() + 5);
        frmcards.mouse().release(image.left() + 9, image.top() + 5);
    }
}

void Play::space(int times) {
    for (int i = 0; i < times; ++i) frmcards.key_down(' ');
}

void Play::undo() { frmcards.mnuUndo.choose(); }

std::string Play::message() {
    const std::string text = desktop.messages().empty() ? "" : desktop.messages().back().text;
    desktop.forget_messages();
    return text;
}

std::string Play::stored(const std::string& key) {
    return store.read("Tarnwick", "setting", key).value_or("-");
}

Image& top_image(int pile) {
    if (pile == tablet_pile)
        return frmcards.Image1(turned_slot() == -1 ? stock_image : int{shown_tablet_image()});
    if (pile >= first_ace_pile) {
        const int p = pile - first_ace_pile;
        return frmcards.Image1(ace_pile_is_empty(p) ? first_ace_zone + p : int{aces(p, picture_field)});
    }
    const int top = column_top(pile);
    return frmcards.Image1(top == -1 ? first_column_zone + pile
                                     : int{layout(pile, top, column_picture_field)});
}

std::string undo_records() {
    std::ostringstream text;
    for (int i = 0; i < undo_count(); ++i) {
        text << (i ? " " : "") << '(' << undo_list(i, 0) << ' ' << undo_list(i, 1) << ' ' << undo_list(i, 2)
             << ')';
    }
    return text.str();
}

bool shows(const std::string& lines) {
    const std::string position = '\n' + position_text();
    std::istringstream wanted(lines);
    for (std::string line; std::getline(wanted, line);) {
        if (position.find('\n' + line + '\n') == std::string::npos) return false;
    }
    return true;
}

}  // namespace tarnwick
