#include "notation/record_player.h"

#include <iomanip>
#include <sstream>
#include <stdexcept>

#include "notation/play_action.h"
#include "platform/random.h"
#include "settings/settings.h"
#include "ui/program.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

// The window becomes 800 pixels wide: every card has its natural size.
constexpr PixelSize screen{810, 660};

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
    play_action(action);
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
