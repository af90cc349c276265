// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/collection/item_counts.h"

namespace desktop::uikit {

NSInteger ItemCounts::items(NSInteger section) const {
  const bool isThere = section >= 0 && section < sections();
  return isThere ? _items[static_cast<std::size_t>(section)] : 0;
}

}  // namespace desktop::uikit
