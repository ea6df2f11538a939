#pragma once

#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "platform/fault_point.h"

namespace tarnwick {

/// A call to a widget that a window does not have.
class NoSuchWidget : public std::out_of_range {
  public:
    explicit NoSuchWidget(int index)
        : std::out_of_range("the window has no widget number " + std::to_string(index)) {}
};

/// Widgets of one kind under one name, told apart by an index; the indices may have gaps.
template <class W>
class Family {
  public:
    /// Adds member `index`, made from the given arguments.
    template <class... Arguments>
    W& add(int index, Arguments&&... arguments) {
        const auto slot = static_cast<std::size_t>(index);
        if (slot >= members_.size()) members_.resize(slot + 1);
        // cppcheck-suppress constStatement
        members_[slot] = std::make_unique<W>(std::forward<Arguments>(arguments)...);
        return *members_[slot];
    }

    /// The member with this index; throws NoSuchWidget where there is none.
    W& operator()(int index) const {
        fault_point();
        if (index < 0 || static_cast<std::size_t>(index) >= members_.size() ||
            !members_[static_cast<std::size_t>(index)]) {
            throw NoSuchWidget(index);
        }
        return *members_[static_cast<std::size_t>(index)];
    }

    /// Calls `action` with every member, in the order of their indices.
    template <class Action>
    void for_each(Action action) const {
        for (const auto& member : members_) {
            if (member) action(*member);
        }
    }

  private:
    std::vector<std::unique_ptr<W>> members_;
};

}  // namespace tarnwick
