// SPDX-License-Identifier: MIT
//
// What is drawn over a cell of a grid, or in place of a photo.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"

namespace desktop::uikit {
class Canvas;
}

namespace desktop::photos_ui {

class CellMark : public bridge::Bound<CellMark, bridge::UIView> {
 public:
  enum class Kind {
    pressed,   // darker, while a finger is on it
    selected,  // paler, with a tick in the corner
    add,       // a plus
  };

  using Bound::Bound;
  static Class classObject();
  // Takes no touches; +1.
  static bridge::Owned<bridge::UIView> make(Kind kind);

  Kind kind() const { return _kind; }
  void setKind(Kind kind);

 private:
  void drawContent(uikit::Canvas* canvas) const;

  Kind _kind = Kind::pressed;
};

}  // namespace desktop::photos_ui
