#include "view/next_tick.h"

#include <algorithm>

#include "platform/desktop.h"
#include "platform/timer.h"

namespace tarnwick {

std::optional<std::int64_t> time_to_next_tick() {
    const std::optional<std::int64_t> due = timer_queue().next_due();
    if (!due) return std::nullopt;
    return std::max<std::int64_t>(0, *due - desktop().now());
}

}  // namespace tarnwick
