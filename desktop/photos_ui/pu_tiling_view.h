// SPDX-License-Identifier: MIT
//
// PUTilingView: pages side by side, one at a time, of which only the one on show and its
// neighbours exist.
#pragma once

#include <functional>
#include <map>

#include "bridge/bound.h"
#include "desktop/uikit/ui_scroll_view.h"

namespace desktop::photos_ui {

class PUTilingView : public bridge::Bound<PUTilingView, uikit::handles::UIScrollView> {
 public:
  using Bound::Bound;
  static Class classObject();

  using Page = bridge::Owned<bridge::UIView>;
  using MakePage = std::function<Page(std::size_t index)>;

  // Called when another page is on show.
  std::function<void(std::size_t index)> pageChanged;

  // Shows pages of a new kind, from a given one on. REQUIRES: first < count, or no pages.
  void setPages(std::size_t count, std::size_t first, MakePage makePage);
  void show(std::size_t index, bool animated);
  std::size_t current() const { return _current; }
  std::size_t count() const { return _count; }
  // The page on show; nil where there is none.
  bridge::UIView currentPage() const;

 private:
  void layoutSubviews();
  CGFloat pageWidth() const { return uikit::UIView::of(self()).bounds().size.width; }
  CGRect frameOf(std::size_t index) const;
  void follow();
  void arrange();

  std::size_t _count = 0;
  std::size_t _current = 0;
  CGSize _laidOut;
  MakePage _makePage;
  std::map<std::size_t, Page> _pages;
};

}  // namespace desktop::photos_ui
