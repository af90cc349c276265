// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/grid/grid_place.h"

#include <limits>

#include "desktop/uikit/scrolling/ui_scroll_view.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::photos_ui {
namespace {

bool areEqual(CGSize left, CGSize right) {
  return left.width == right.width && left.height == right.height;
}

}  // namespace

bool GridPlace::Room::operator==(const Room& other) const {
  return areEqual(content, other.content) && areEqual(view, other.view) && insets == other.insets;
}

void GridPlace::setStartsAtEnd(bool startsAtEnd) {
  _startsAtEnd = startsAtEnd;
  _staysAtEnd = startsAtEnd;
}

GridPlace::Room GridPlace::room() const {
  const auto& scroll = _grid.scroll();
  return {.content = scroll.contentSize(),
          .view = _grid.view().bounds().size,
          .insets = scroll.adjustedContentInset()};
}

bool GridPlace::isAtEnd() const {
  constexpr CGFloat nearly = 20;  // points
  const auto& scroll = _grid.scroll();
  const CGPoint end = scroll.clamped({0, scroll.contentSize().height});
  return scroll.contentOffset().y >= end.y - nearly;
}

// Whoever scrolls decides whether the end stays in sight; room that changes does not.
void GridPlace::scrolled() {
  if (_isPlacing || !_startsAtEnd) return;
  if (room() == _placedRoom) _staysAtEnd = isAtEnd();
}

void GridPlace::stayAtEnd() {
  if (!_staysAtEnd || _isPlacing || !_grid.view() || _grid.list()->isEmpty()) return;
  scrollTo(std::numeric_limits<float>::max());
  _placedRoom = room();
}

void GridPlace::scrollTo(CGFloat y) {
  _isPlacing = true;
  _grid.measure();
  auto& scroll = _grid.scroll();
  scroll.setContentOffset(scroll.clamped({0, y}));
  _isPlacing = false;
}

std::optional<GridPlace::Anchor> GridPlace::anchor() const {
  if (!_grid.view() || _grid.list()->isEmpty()) return {};
  const auto& scroll = _grid.scroll();
  const CGFloat top = scroll.contentOffset().y + scroll.adjustedContentInset().top;
  std::optional<Anchor> best;
  for (const auto& [element, view] : _grid.viewState().views()) {
    const auto index = element.kind.empty() ? _grid.list()->indexOf(element.path) : std::nullopt;
    if (!index || uikit::bottom(view->frame()) <= top) continue;
    if (!best || *index < best->index) best = Anchor{*index, view->frame().origin.y - top};
  }
  return best;
}

void GridPlace::restore(const Anchor& anchor) {
  const auto path = _grid.list()->pathOf(anchor.index);
  if (!path || _staysAtEnd) return;
  _grid.measure();
  scrollTo(_grid.layout().frameOfItem(*path).origin.y - _grid.scroll().adjustedContentInset().top -
           anchor.y);
}

void GridPlace::reveal(std::size_t index) {
  const auto path = _grid.list()->pathOf(index);
  if (!path) return;
  _grid.measure();
  const auto& scroll = _grid.scroll();
  const uikit::EdgeInsets insets = scroll.adjustedContentInset();
  const CGRect frame = _grid.layout().frameOfItem(*path);
  const CGFloat top = scroll.contentOffset().y + insets.top;
  const CGFloat seen = _grid.view().bounds().size.height - insets.top - insets.bottom;
  if (frame.origin.y >= top && uikit::bottom(frame) <= top + seen) return;
  _staysAtEnd = false;
  scrollTo(uikit::middle(frame).y - seen / 2 - insets.top);
}

}  // namespace desktop::photos_ui
