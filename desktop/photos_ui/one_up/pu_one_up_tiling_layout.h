// SPDX-License-Identifier: MIT
//
// PUOneUpTilingLayout: which item of what is browsed one by one is on show.
#pragma once

#include <optional>

#include "bridge/bound.h"
#include "bridge/photos.h"
#include "desktop/platform.h"
#include "desktop/uikit/lists/index_path.h"

namespace desktop::photos_ui {

class PUOneUpTilingLayoutState
    : public Bound<PUOneUpTilingLayoutState, NSObject, PUOneUpTilingLayout> {
 public:
  using Bound::Bound;
  static Class classObject();

  void setCurrent(std::optional<uikit::ItemPath> path) { _current = path; }

 private:
  NSObject init();
  // Nil while nothing is shown.
  NSIndexPath indexPathOfCurrentItem() const;

  std::optional<uikit::ItemPath> _current;
};

}  // namespace desktop::photos_ui
