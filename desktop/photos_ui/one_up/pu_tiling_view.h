// SPDX-License-Identifier: MIT
//
// PUTilingView: pages side by side, one at a time, of which only the one on show and its
// neighbours exist.
#pragma once

#include <functional>
#include <map>
#include <optional>

#include "bridge/bound.h"
#include "desktop/platform.h"
#include "desktop/uikit/scrolling/ui_scroll_view.h"

namespace desktop::photos_ui {

class PUTilingView : public Bound<PUTilingView, uikit::UIScrollViewState> {
 public:
  using Bound::Bound;
  static Class classObject();

  using Page = Owned<UIView>;
  using MakePage = std::function<Page(std::size_t index)>;

  // Called when another page is on show.
  std::function<void(std::size_t index)> pageChanged;
  // Called with pages that cannot be seen, not even in part, whenever something moves.
  std::function<void(UIView page)> pageHidden;

  // Shows pages of a new kind, from a given one on. REQUIRES: first < count, or no pages.
  void setPages(std::size_t count, std::size_t first, MakePage makePage);
  // The same where the page on show stays what it is, at another place.
  void replaceOtherPages(std::size_t count, std::size_t current, MakePage makePage);
  void show(std::size_t index, bool animated);
  std::size_t current() const { return _current; }
  // The page that it is on the way to, or at.
  std::size_t goal() const { return _goal.value_or(_current); }
  std::size_t count() const { return _count; }
  // The page on show; nil where there is none.
  UIView currentPage() const;

 private:
  void layoutSubviews();
  CGFloat pageWidth() const { return bounds().size.width; }
  CGRect frameOf(std::size_t index) const;
  void follow();
  void updateGoal();
  void arrange();
  void placePage(std::size_t index);
  void tellHidden() const;

  std::size_t _count = 0;
  std::size_t _current = 0;
  std::optional<std::size_t> _goal;  // while it moves by itself
  CGSize _laidOut;
  MakePage _makePage;
  std::map<std::size_t, Page> _pages;
};

}  // namespace desktop::photos_ui
