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
    /// Celebrates in a window of this size, unless nothing is to be seen to move, and holds back the window
    /// that the program shows next; see FormView::won.
    void celebrate(Form& next, const std::vector<std::vector<const Image*>>& piles, PixelSize size);
    /// Ends what there is of it, and shows the window that was held back.
    void end_celebration();
    /// What was written while a window was held back, or just after, is for the text box of that.
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
    Form* held_back_ = nullptr;
    std::optional<std::int64_t> next_frame_;
};

}  // namespace tarnwick
