#include "notation/record_player.h"

#include <iomanip>
#include <sstream>
#include <stdexcept>

#include "platform/random.h"
#include "settings/settings.h"
#include "state/variables.h"
#include "ui/program.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

// The window becomes 800 pixels wide: every card has its natural size.
constexpr PixelSize screen{810, 660};

Image& image_of_source(int pile) {
    int picture = none;
    if (pile == tablet_pile) {
        if (turned_slot() >= 0) picture = shown_tablet_image();
    } else if (pile >= first_ace_pile) {
        if (!ace_pile_is_empty(pile - first_ace_pile)) picture = aces(pile - first_ace_pile, picture_field);
    } else if (!column_is_empty(pile)) {
        picture = layout(pile, column_top(pile), column_picture_field);
    }
    if (picture == none) throw std::invalid_argument("there is no card to drag");
    return frmcards.Image1(picture);
}

Image& image_of_target(int pile) {
    if (pile == tablet_pile) {
        return frmcards.Image1(turned_slot() >= 0 ? int{shown_tablet_image()} : stock_image);
    }
    if (pile >= first_ace_pile) {
        const int p = pile - first_ace_pile;
        return frmcards.Image1(ace_pile_is_empty(p) ? first_ace_zone + p : int{aces(p, picture_field)});
    }
    if (column_is_empty(pile)) return frmcards.Image1(first_column_zone + pile);
    return frmcards.Image1(layout(pile, column_top(pile), column_picture_field));
}

void drag(const Action& action) {
    const Image& source = image_of_source(action.source);
    const Image& target = image_of_target(action.target);
    Mouse& mouse = frmcards.mouse();
    constexpr float halfway_down = 48;
    mouse.press(source.left() + 1, source.top() + halfway_down);
    const float x = target.left() + static_cast<float>(action.offset);
    const float y = target.top() + halfway_down;
    mouse.move(x, y);
    mouse.release(x, y);
}

void turn() {
    const Image& stock = frmcards.Image1(stock_image);
    frmcards.mouse().press(stock.left() + 1, stock.top() + 1);
    frmcards.mouse().release(stock.left() + 1, stock.top() + 1);
}

}  // namespace

RecordPlayer::RecordPlayer() : desktop_(screen) {}

RecordPlayer::~RecordPlayer() {
    if (started_) end_program();
    random_generator().stop_replay();
}

void RecordPlayer::deal(std::uint32_t number) {
    if (started_) end_program();
    started_ = true;
    use_store(&store_);
    save_setting(key_anamate, text_of(false));
    random_generator().replay(number);
    start_program(store_);
}

void RecordPlayer::play(const Action& action) {
    desktop_.forget_messages();
    if (action.kind == ActionKind::deal) {
        deal(action.deal);
        return;
    }
    if (!started_) throw std::invalid_argument("a record begins with a deal");
    if (!frmcards.accepts_input()) throw std::invalid_argument("the game is over");
    switch (action.kind) {
        case ActionKind::turn:
            turn();
            break;
        case ActionKind::drag:
            drag(action);
            break;
        case ActionKind::undo:
            frmcards.mnuUndo.choose();
            break;
        default:
            frmcards.mnuRestart.choose();
            break;
    }
}

std::vector<std::string> RecordPlayer::messages() const {
    std::vector<std::string> texts;
    for (const Message& message : desktop_.messages()) texts.push_back(message.text);
    return texts;
}

void Signature::add(const std::string& text) {
    for (const char letter : text) {
        hash_ ^= static_cast<unsigned char>(letter);
        hash_ *= 0x100000001b3U;
    }
}

std::string Signature::text() const {
    std::ostringstream digits;
    digits << std::hex << std::setw(16) << std::setfill('0') << hash_;
    return digits.str();
}

}  // namespace tarnwick
