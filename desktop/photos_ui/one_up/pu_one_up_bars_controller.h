// SPDX-License-Identifier: MIT
//
// PUOneUpBarsController: what the bars above and below a single photo show.
#pragma once

#include "bridge/bound.h"
#include "bridge/photos.h"
#include "desktop/photos_ui/one_up/browsed_items.h"
#include "desktop/platform.h"

namespace desktop::photos_ui {

class PUOneUpBarsController : public Bound<PUOneUpBarsController, NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();

  // Of a single-photo controller and the items that it shows, which outlive it.
  static Owned<NSObject> make(UIViewController oneUp, const BrowsedItems& items);
  // Brings the bars up to what is on show now; by message, for extensions to follow.
  void update() const;

 private:
  // What the tools at the bottom say of the item.
  struct Tools {
    bool isFavourite = false;
    bool isLivePhoto = false;
    bool operator==(const Tools&) const = default;
  };

  void updateBars();
  Tools toolsNow() const;
  void showTools(Tools tools);
  void shareTouched(NSObject sender);
  void favouriteTouched(NSObject sender);

  UIViewController _oneUp;  // borrowed
  const BrowsedItems* _items = nullptr;
  Tools _tools;
};

}  // namespace desktop::photos_ui
