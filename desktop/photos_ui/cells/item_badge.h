// SPDX-License-Identifier: MIT
//
// The bar at the bottom of a thumbnail that marks what its item is: a favourite, a Live Photo, a
// panorama, or a video with its length.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/library/photo_library.h"
#include "desktop/platform.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
class Canvas;
}

namespace desktop::photos_ui {

// "0:09", "12:34" or "1:02:03"; whole seconds, of which there is at least one.
std::string durationText(double seconds);

struct ItemMarks {
  bool isFavourite = false;
  bool isLivePhoto = false;
  bool isPanorama = false;
  bool isVideo = false;
  double duration = 0;  // seconds; 0 where it is not known, or the item has none

  bool areAny() const { return isFavourite || isLivePhoto || isPanorama || isVideo; }
};

// Of an item as the library knows it by now; none of no item. Only of a video are facts read.
ItemMarks marksOf(library::PhotoLibrary& library, const library::ItemPointer& item);

class ItemBadge : public Bound<ItemBadge, uikit::UIViewState> {
 public:
  using Bound::Bound;
  static Class classObject();
  static constexpr CGFloat height = 20;  // points
  // +1.
  static Owned<UIView> make();

  void show(const ItemMarks& marks);

 private:
  UIView initWithFrame(CGRect frame);
  void layoutSubviews();
  void drawContent(uikit::Canvas* canvas) const;

  ItemMarks _marks;
  Owned<UILabel> _label;
};

}  // namespace desktop::photos_ui
