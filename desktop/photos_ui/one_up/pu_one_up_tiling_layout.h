// SPDX-License-Identifier: MIT
//
// PUOneUpTilingLayout: which item of what is browsed one by one is on show.
#pragma once

#include <optional>

#include "bridge/bound.h"
#include "bridge/photos.h"
#include "desktop/uikit/lists/index_path.h"

namespace desktop::photos_ui {

class PUOneUpTilingLayout : public bridge::Bound<PUOneUpTilingLayout, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();

  void setCurrent(std::optional<uikit::ItemPath> path) { _current = path; }

 private:
  bridge::NSObject init();
  // Nil while nothing is shown.
  bridge::NSIndexPath indexPathOfCurrentItem() const;

  std::optional<uikit::ItemPath> _current;
};

}  // namespace desktop::photos_ui
