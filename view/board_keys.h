#pragma once

#include <optional>
#include <string_view>
#include <utility>

#include "platform/form.h"
#include "view/board_cursor.h"
#include "view/board_front.h"
#include "view/board_scene.h"
#include "view/repaints.h"

namespace tarnwick {

/// Plays on a board with keys: what they do with the cursor, and the presses of the mouse that this stands
/// for. What is held is seen where it would lie. Whatever calls into the game comes last: window and view
/// may be gone afterwards.
class BoardKeys {
  public:
    BoardKeys(Form& form, BoardScene& scene, Repaints& repaints, BoardFront& front)
        : form_(form), scene_(scene), cursor_(scene.cursor()), repaints_(repaints), front_(front) {}

    /// Whether the keys hold a card.
    bool hold() const;
    /// Whether that, or what it is, can be told of where the cursor is: in a few words, empty for nothing.
    std::string_view hint() const;

    /// Whether a key is the cursor's: an arrow, and Enter once it is seen.
    bool take(int key_code) const;
    /// An arrow key brings the cursor into sight, or moves it: while a card is held, from pile to pile. To be
    /// seen is then the result, before update() carries there what is held.
    Area go(int key_code);
    /// The board may look different: the cursor keeps its place, and goes back with what was put back.
    void update();
    /// What is held may be seen elsewhere.
    void drag_changed();
    /// The pointer plays: the cursor goes out of sight, and what the keys hold is put back.
    void hide();
    /// Enter takes up the card under the cursor, or puts down what is held; where nothing can be taken up, it
    /// clicks as often as it takes to do something.
    void enter();

  private:
    struct Lift {
        const Widget* card;
        BoardCursor::Position from;
    };

    bool is_home() const { return lift_ && cursor_.position().pile == lift_->from.pile; }
    void follow();
    void carry();
    void ring_changed();
    void take_up(const Image& image);
    void put_down();

    Form& form_;
    BoardScene& scene_;
    BoardCursor& cursor_;
    Repaints& repaints_;
    BoardFront& front_;
    Area area_;                                          ///< where the ring is seen
    std::pair<const Widget*, std::string_view> told_{};  ///< the cursor's item, and the hint
    std::optional<Lift> lift_;                           ///< until the cursor has followed what became of it
    bool dropped_ = false;
};

}  // namespace tarnwick
