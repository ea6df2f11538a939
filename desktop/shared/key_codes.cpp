#include "desktop/shared/key_codes.h"

#include <Qt>
#include <algorithm>
#include <array>
#include <utility>

#include "platform/key_codes.h"

namespace tarnwick {

int key_code_of(int qt_key) {
    constexpr std::array codes{
        std::pair{Qt::Key_Backspace, 8},
        std::pair{Qt::Key_Tab, 9},
        std::pair{Qt::Key_Return, enter_key},
        std::pair{Qt::Key_Enter, enter_key},
        std::pair{Qt::Key_Escape, escape_key},
        std::pair{Qt::Key_PageUp, page_up_key},
        std::pair{Qt::Key_PageDown, page_down_key},
        std::pair{Qt::Key_End, end_key},
        std::pair{Qt::Key_Home, home_key},
        std::pair{Qt::Key_Left, left_key},
        std::pair{Qt::Key_Up, up_key},
        std::pair{Qt::Key_Right, right_key},
        std::pair{Qt::Key_Down, down_key},
        std::pair{Qt::Key_Insert, 45},
        std::pair{Qt::Key_Delete, 46},
    };
    // Space, the digits and the letters have the same codes on both sides.
    if (qt_key == Qt::Key_Space || (qt_key >= Qt::Key_0 && qt_key <= Qt::Key_9) ||
        (qt_key >= Qt::Key_A && qt_key <= Qt::Key_Z)) {
        return qt_key;
    }
    if (qt_key >= Qt::Key_F1 && qt_key <= Qt::Key_F12) return 112 + qt_key - Qt::Key_F1;
    const auto found =
        std::find_if(codes.begin(), codes.end(), [=](auto& code) { return code.first == qt_key; });
    return found == codes.end() ? 0 : found->second;
}

}  // namespace tarnwick
