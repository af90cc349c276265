// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/item_press.h"

#include <utility>

namespace desktop::uikit {

void ItemPress::begin(ItemPath path) {
  _path = path;
}

std::optional<ItemPath> ItemPress::end() {
  return std::exchange(_path, std::nullopt);
}

}  // namespace desktop::uikit
