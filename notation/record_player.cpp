#include "notation/record_player.h"

#include <iomanip>
#include <sstream>
#include <stdexcept>

#include "board/display.h"
#include "platform/random.h"
#include "settings/settings.h"
#include "state/variables.h"
#include "ui/program.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

// The window becomes 800 pixels wide: every card has its natural size.
constexpr PixelSize screen{810, 660};

const Image& image_of_source(int pile) {
    const Image& image = top_image(pile);
    const bool is_card = image.index() >= first_face_image && image.index() <= last_face_image;
    if (!is_card) throw std::invalid_argument("there is no card to drag");
    return image;
}

void drag(const Action& action) {
    const Image& source = image_of_source(action.source);
    const Image& target = top_image(action.target);
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
