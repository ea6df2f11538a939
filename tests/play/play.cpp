#include "tests/play/play.h"

#include <sstream>

#include "notation/position.h"
#include "notation/record_text.h"
#include "state/variables.h"
#include "windows/frmcards.h"

namespace tarnwick {
void Play::start(const std::string& position) {
    save("anamate", "False");
    start();
    set_position(position);
}

void Play::act(const std::string& record) {
    std::istringstream lines(record);
    for (std::string line; std::getline(lines, line, ',');) {
        Action action;
        parse_action(line, action);
        play_action(action);
    }
}

void Play::drag(int from, int to, float offset) { drag_image(top_image(from), top_image(to), offset); }

void Play::drag_slot(int from, int slot, int to) {
    drag_image(frmcards.Image1(layout(from, slot, column_picture_field)), top_image(to), middle);
}

void Play::click(int pile, float offset) { click_image(top_image(pile), offset); }

void Play::click_stock(int times) {
    for (int i = 0; i < times; ++i) click_image(frmcards.Image1(stock_image), 9);
}

void Play::double_click(const Image& image) {
    click_image(image, 9);
    click_image(image, 9);
}

void Play::space(int times) {
    for (int i = 0; i < times; ++i) frmcards.key_down(' ');
}

void Play::undo() { frmcards.mnuUndo.choose(); }

std::string Play::message() {
    std::string text = desktop.messages().empty() ? "" : desktop.messages().back().text;
    desktop.forget_messages();
    return text;
}

std::string Play::stored(const std::string& key) {
    return store.read("Tarnwick", "setting", key).value_or("-");
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
