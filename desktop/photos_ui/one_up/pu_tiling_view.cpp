// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/one_up/pu_tiling_view.h"

#include <algorithm>
#include <cmath>

#include "bridge/class_builder.h"
#include "desktop/platform.h"

namespace desktop::photos_ui {

Class PUTilingView::classObject() {
  static const Class made = ClassBuilder<PUTilingView>("PUTilingView")
                                .method<"layoutSubviews", &PUTilingView::layoutSubviews>()
                                .build();
  return made;
}

void PUTilingView::setPages(std::size_t count, std::size_t first, MakePage makePage) {
  for (const auto& [index, page] : _pages) page->removeFromSuperview();
  _pages.clear();
  _count = count;
  _current = count == 0 ? 0 : std::min(first, count - 1);
  _goal.reset();
  _makePage = std::move(makePage);
  _laidOut = {};
  setNeedsLayout();
}

void PUTilingView::replaceOtherPages(std::size_t count, std::size_t current, MakePage makePage) {
  auto kept = _pages.extract(_current);
  setPages(count, current, std::move(makePage));
  if (kept.empty()) return;
  kept.key() = current;
  _pages.insert(std::move(kept));
}

UIView PUTilingView::currentPage() const {
  const auto found = _pages.find(_current);
  return found == _pages.end() ? UIView() : found->second.get();
}

CGRect PUTilingView::frameOf(std::size_t index) const {
  const CGSize size = bounds().size;
  return {{static_cast<CGFloat>(index) * size.width, 0}, size};
}

void PUTilingView::show(std::size_t index, bool animated) {
  if (index >= _count) return;
  _goal = index;
  self().setContentOffset(frameOf(index).origin, animated);
  setNeedsLayout();
}

// A layout pass comes with every move; where the size changed, the same page stays on show.
void PUTilingView::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGSize size = bounds().size;
  if (size != _laidOut) {
    _laidOut = size;
    _goal.reset();
    self().setContentSize({static_cast<CGFloat>(_count) * size.width, size.height});
    self().setContentOffset(frameOf(_current).origin);
  } else {
    updateGoal();
    follow();
  }
  arrange();
  tellHidden();
}

void PUTilingView::tellHidden() const {
  if (!pageHidden) return;
  const CGFloat left = self().contentOffset().x;
  for (const auto& [index, page] : _pages)
    if (std::abs(frameOf(index).origin.x - left) >= pageWidth()) pageHidden(page.get());
}

// A finger may have taken over.
void PUTilingView::updateGoal() {
  if (!_goal) return;
  const bool isThere = self().contentOffset() == frameOf(*_goal).origin;
  if (isThere || isTracking()) _goal.reset();
}

// The page that takes the most room is the one on show.
void PUTilingView::follow() {
  if (_count == 0 || pageWidth() <= 0) return;
  const CGFloat position = std::round(self().contentOffset().x / pageWidth());
  const auto index =
      static_cast<std::size_t>(std::clamp(position, 0.0, static_cast<CGFloat>(_count - 1)));
  if (index == _current) return;
  _current = index;
  if (pageChanged) pageChanged(index);
}

// The page on show is made first, as its picture is wanted first.
void PUTilingView::arrange() {
  if (_count == 0 || !_makePage) return;
  const std::size_t first = _current == 0 ? 0 : _current - 1;
  const std::size_t last = std::min(_current + 1, _count - 1);
  std::erase_if(_pages, [&](const auto& entry) {
    if (entry.first >= first && entry.first <= last) return false;
    entry.second->removeFromSuperview();
    return true;
  });
  placePage(_current);
  for (const std::size_t index : {last, first})
    if (index != _current) placePage(index);
}

void PUTilingView::placePage(std::size_t index) {
  Page& page = _pages[index];
  if (!page) {
    page = _makePage(index);
    self().addSubview(page);
  }
  page->setFrame(frameOf(index));
}

}  // namespace desktop::photos_ui
