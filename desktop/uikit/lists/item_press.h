// SPDX-License-Identifier: MIT
//
// What a finger presses in a list, from when it comes down until it leaves that item, or is gone.
#pragma once

#include <concepts>
#include <optional>

#include "desktop/uikit/lists/index_path.h"

namespace desktop::uikit {

class ItemPress {
 public:
  std::optional<ItemPath> path() const { return _path; }
  bool isOn(ItemPath path) const { return _path == path; }

  void begin(ItemPath path);
  // What was pressed until now.
  std::optional<ItemPath> end();

  // Whether the finger has moved off what it presses. Where it is, is asked only during a press.
  template <std::invocable Find>
  bool hasLeft(const Find& whereFingerIs) const {
    return _path && !stillOn(whereFingerIs);
  }
  // What is tapped by a finger that lifts here; nothing where it has moved off.
  template <std::invocable Find>
  std::optional<ItemPath> tappedBy(const Find& whereFingerIs) const {
    return _path ? stillOn(whereFingerIs) : std::nullopt;
  }

 private:
  // Finding out may end the press.
  template <typename Find>
  std::optional<ItemPath> stillOn(const Find& whereFingerIs) const {
    const auto pressed = _path;
    return whereFingerIs() == pressed ? pressed : std::nullopt;
  }

  std::optional<ItemPath> _path;
};

}  // namespace desktop::uikit
