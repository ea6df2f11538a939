#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/form.h"
#include "platform/image.h"
#include "view/area.h"
#include "view/board_front.h"
#include "view/board_scene.h"
#include "view/repaints.h"

namespace tarnwick {

/// What moves on a board, in a drag or by itself: lifted images and their glide back, cards on their way, a
/// celebration. Steps all of it, and tells what is to be painted anew. Times are milliseconds of the
/// desktop's clock.
class BoardMoves {
  public:
    /// All of these outlive this object.
    BoardMoves(Form& form, BoardScene& scene, Repaints& repaints, BoardFront& front)
        : form_(form), scene_(scene), repaints_(repaints), front_(front), plate_(scene.plate()) {}

    void follow_drag();
    /// Images that glide back are at home at once.
    void end_glide();
    /// What an event has changed sets out for where it lies now.
    void begin_motion();
    /// Cards on their way are where they lie at once.
    void land_motion();
    /// The same when all is painted anew.
    void rest();
    /// The program shows this window next; see FormView::game_over.
    void game_over(Form& next) { next_ = &next; }
    /// Celebrates in a window of this size, unless nothing is to be seen to move, and holds back the window
    /// that is shown next.
    void celebrate(const std::vector<std::vector<const Image*>>& piles, PixelSize size);
    /// To be asked at each press: whether it is the second half of a double click whose first half has won
    /// the game, and which is still to be celebrated.
    bool is_second_press(Point place, MouseButton button);
    /// Ends what there is of it, and shows the window that was held back.
    void end_celebration();
    /// What was written before the window that is shown next has the keyboard is for the text box of that.
    void type(const std::string& text);
    /// The labels may lie elsewhere now.
    void plate_moved() { plate_ = scene_.plate(); }

    /// When the next picture of all this is due; nothing while it rests.
    std::optional<std::int64_t> next_frame() const { return next_frame_; }
    /// Plans the next picture, if one is needed and none is planned.
    void schedule(std::int64_t now);
    /// Goes on to where all is seen now, if a picture is due.
    void step(std::int64_t now);

  private:
    struct Press {
        Point place;
        MouseButton button;
        std::int64_t time;
    };

    void repaint_home(const std::vector<Image*>& images);
    void repaint_lifted();
    void repaint_motion();
    void repaint_celebration();
    void update_plate();
    bool under_way() const;

    Form& form_;
    BoardScene& scene_;
    Repaints& repaints_;
    BoardFront& front_;
    Area lifted_area_;
    Area mark_area_;
    std::vector<Area> motion_areas_;
    std::vector<Area> celebration_areas_;
    Area plate_;
    bool lays_plate_ = false;  ///< as it was last told
    Form* next_ = nullptr;     ///< shown when a game is over
    std::optional<Press> last_press_;
    std::optional<std::int64_t> next_frame_;
};

}  // namespace tarnwick
