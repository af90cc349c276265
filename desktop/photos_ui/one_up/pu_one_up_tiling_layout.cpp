// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/one_up/pu_one_up_tiling_layout.h"

#include "bridge/class_builder.h"

namespace desktop::photos_ui {

Class PUOneUpTilingLayout::classObject() {
  static const Class made =
      bridge::ClassBuilder<PUOneUpTilingLayout>("PUOneUpTilingLayout")
          .method<"init", &PUOneUpTilingLayout::init>()
          .method<"indexPathOfCurrentItem", &PUOneUpTilingLayout::indexPathOfCurrentItem>()
          .build();
  return made;
}

// There for extensions that want to know of every layout.
bridge::NSObject PUOneUpTilingLayout::init() {
  return super<bridge::NSObject, "init">();
}

bridge::NSIndexPath PUOneUpTilingLayout::indexPathOfCurrentItem() const {
  return _current ? uikit::indexPathOf(*_current) : bridge::NSIndexPath();
}

}  // namespace desktop::photos_ui
