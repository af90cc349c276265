// SPDX-License-Identifier: MIT
//
// The photos of a list as pages side by side in a tiling view, and what keys do to them: turning
// pages, looking closer, playing.
#pragma once

#include "desktop/photos_ui/one_up/browsed_items.h"
#include "desktop/photos_ui/one_up/one_up_action.h"
#include "desktop/photos_ui/one_up/pu_tiling_view.h"

namespace desktop::photos_ui {

class PhotoPages {
 public:
  PhotoPages() = default;
  PhotoPages(const PhotoPages&) = delete;
  PhotoPages& operator=(const PhotoPages&) = delete;
  // The view may outlive it, and tells of no page then.
  ~PhotoPages();

  // A tiling view for photos.
  static Owned<UIScrollView> makeView(CGRect frame);
  // Shows pages in such a view; called when another page is on show.
  void setView(UIView view);
  void onChange(std::function<void(std::size_t index)> changed);
  // Nil at first.
  UIView view() const { return _view; }

  // Shows the items; a page on show that stays the current item is left as it is.
  // REQUIRES: there is a view.
  void show(const BrowsedItems& items);
  // Whether it did something.
  bool perform(OneUpAction action);

 private:
  PUTilingView& tiling() const { return PUTilingView::of(_view.get()); }
  bool turnTo(std::size_t index);
  bool zoom(OneUpAction action);
  bool play();

  Owned<UIView> _view;
};

}  // namespace desktop::photos_ui
