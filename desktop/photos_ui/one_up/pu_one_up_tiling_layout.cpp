// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/one_up/pu_one_up_tiling_layout.h"

#include "bridge/class_builder.h"
#include "desktop/platform.h"

namespace desktop::photos_ui {

Class PUOneUpTilingLayoutState::classObject() {
  static const Class made =
      ClassBuilder<PUOneUpTilingLayoutState>("PUOneUpTilingLayout")
          .method<"init", &PUOneUpTilingLayoutState::init>()
          .method<"indexPathOfCurrentItem", &PUOneUpTilingLayoutState::indexPathOfCurrentItem>()
          .build();
  return made;
}

// There for extensions that want to know of every layout.
NSObject PUOneUpTilingLayoutState::init() {
  return super<NSObject, "init">();
}

NSIndexPath PUOneUpTilingLayoutState::indexPathOfCurrentItem() const {
  return _current ? uikit::indexPathOf(*_current) : NSIndexPath();
}

}  // namespace desktop::photos_ui
