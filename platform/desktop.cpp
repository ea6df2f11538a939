#include "platform/desktop.h"

#include <stdexcept>

namespace tarnwick {
namespace {

Desktop* in_use = nullptr;

}  // namespace

Desktop& desktop() {
    if (!in_use) throw std::logic_error("there is no desktop");
    return *in_use;
}

void use_desktop(Desktop* desktop) { in_use = desktop; }

}  // namespace tarnwick
