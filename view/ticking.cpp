#include "view/ticking.h"

#include <algorithm>

#include "platform/desktop.h"
#include "platform/timer.h"

namespace tarnwick {

std::optional<std::int64_t> time_to_next_tick() {
    // A front end that waited for a timer that cannot tick would come back to it at once, again and again.
    if (desktop().asking()) return std::nullopt;
    const std::optional<std::int64_t> due = timer_queue().next_due();
    if (!due) return std::nullopt;
    return std::max<std::int64_t>(0, *due - desktop().now());
}

}  // namespace tarnwick
