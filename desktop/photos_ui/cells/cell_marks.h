// SPDX-License-Identifier: MIT
//
// What is drawn over a cell of a grid, or in place of a photo.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/platform.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
class Canvas;
}

namespace desktop::photos_ui {

class CellMark : public Bound<CellMark, uikit::UIViewState> {
 public:
  enum class Kind {
    pressed,   // darker, while a finger is on it
    selected,  // paler, with a tick at the upper right
    add,       // a plus
  };

  using Bound::Bound;
  static Class classObject();
  // Takes no touches; +1.
  static Owned<UIView> make(Kind kind);

  Kind kind() const { return _kind; }
  void setKind(Kind kind);

 private:
  void drawContent(uikit::Canvas* canvas) const;

  Kind _kind = Kind::pressed;
};

}  // namespace desktop::photos_ui
