// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/base/large_title.h"

#include "desktop/uikit/bars/ui_navigation_item.h"

namespace desktop::photos_ui {

void useLargeTitle(UIViewController controller, bool isLarge) {
  using Item = uikit::UINavigationItemState;
  controller.navigationItem().setLargeTitleDisplayMode(
      NSInteger{isLarge ? Item::always : Item::never});
}

}  // namespace desktop::photos_ui
