// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/base/large_title.h"

#include "desktop/uikit/bars/ui_navigation_item.h"

namespace desktop::photos_ui {

void useLargeTitle(UIViewController controller, bool isLarge) {
  using Item = uikit::UINavigationItemState;
  send<void, "setLargeTitleDisplayMode:">(controller.navigationItem(),
                                          NSInteger{isLarge ? Item::always : Item::never});
}

}  // namespace desktop::photos_ui
