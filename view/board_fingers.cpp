#include "view/board_fingers.h"

namespace tarnwick {

bool BoardFingers::down(int finger, Point place) {
    if (stage_.plays(Pointer::finger)) return false;
    playing_ = finger;
    stage_.press(place.x, place.y, MouseButton::left, Pointer::finger);
    return true;
}

void BoardFingers::move(int finger, Point place) {
    if (playing_ == finger) stage_.move(place.x, place.y, true, Pointer::finger);
}

bool BoardFingers::up(int finger, Point place, bool elsewhere) {
    if (playing_ != finger) return false;
    playing_.reset();
    stage_.release(place.x, place.y, MouseButton::left, elsewhere, Pointer::finger);
    return true;
}

void BoardFingers::cancel() {
    playing_.reset();
    stage_.cancel(Pointer::finger);
}

}  // namespace tarnwick
