#pragma once

#include <optional>
#include <string_view>

#include "platform/form.h"
#include "view/board_cursor.h"

namespace tarnwick {

/// Plays on a board with keys: what they do with the cursor, and the presses of the mouse that this stands
/// for. What is held is seen where it would lie. Whatever calls into the game comes last: window and view
/// may be gone afterwards.
class BoardKeys {
  public:
    BoardKeys(Form& form, BoardCursor& cursor) : form_(form), cursor_(cursor) {}

    /// Whether the keys hold a card.
    bool hold() const;
    /// Whether that, or what it is, can be told of where the cursor is: in a few words, empty for nothing.
    std::string_view hint() const;

    /// An arrow key brings the cursor into sight, or moves it: while a card is held, from pile to pile.
    void go(int key_code);
    /// The board may look different: the cursor keeps its place. It goes back with what was put back.
    void follow();
    /// What is held goes to where the cursor is.
    void carry();
    /// Enter takes up the card under the cursor, or puts down what is held; where nothing can be taken up, it
    /// clicks as often as it takes to do something.
    void enter();

  private:
    struct Lift {
        const Widget* card;
        BoardCursor::Position from;
    };

    bool is_home() const { return lift_ && cursor_.position().pile == lift_->from.pile; }
    void take_up(const Image& image);
    void put_down();

    Form& form_;
    BoardCursor& cursor_;
    std::optional<Lift> lift_;  ///< until the cursor has followed what became of it
    bool dropped_ = false;
};

}  // namespace tarnwick
