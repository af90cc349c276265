// SPDX-License-Identifier: MIT
//
// Where one is in a grid, and how that is kept while the grid changes under one.
#include <algorithm>
#include <limits>

#include "desktop/photos_ui/grid/pu_photos_grid_view_controller.h"
#include "desktop/uikit/lists/ui_collection_view.h"
#include "desktop/uikit/scrolling/ui_scroll_view.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::photos_ui {
namespace {

// Has the layout placed the items as they are now, without making their cells.
void measure(bridge::UICollectionView view) {
  bridge::send<bridge::Object, "layoutAttributesForItemAtIndexPath:">(view,
                                                                      uikit::indexPathOf({0, 0}));
}

bool areEqual(CGSize left, CGSize right) {
  return left.width == right.width && left.height == right.height;
}

}  // namespace

bool PUPhotosGridViewController::Room::operator==(const Room& other) const {
  return areEqual(content, other.content) && areEqual(view, other.view) && insets == other.insets;
}

PUPhotosGridViewController::Room PUPhotosGridViewController::room() const {
  const auto& scroll = uikit::UIScrollView::of(_collectionView.get());
  return {.content = scroll.contentSize(),
          .view = _collectionView->bounds().size,
          .insets = scroll.adjustedContentInset()};
}

bool PUPhotosGridViewController::isAtEnd() const {
  constexpr CGFloat nearly = 20;  // points
  const auto& scroll = uikit::UIScrollView::of(_collectionView.get());
  const CGPoint end = scroll.clamped({0, scroll.contentSize().height});
  return scroll.contentOffset().y >= end.y - nearly;
}

// Whoever scrolls decides whether the end stays in sight; room that changes does not.
void PUPhotosGridViewController::didScroll(bridge::UIView) {
  if (_isPlacing || !_contents.startsAtEnd) return;
  if (room() == _placedRoom) _staysAtEnd = isAtEnd();
}

void PUPhotosGridViewController::placeAtEnd() {
  if (_isPlacing || !_collectionView || _list->isEmpty()) return;
  scrollTo(std::numeric_limits<float>::max());
  _placedRoom = room();
}

void PUPhotosGridViewController::scrollTo(CGFloat y) {
  _isPlacing = true;
  measure(_collectionView);
  auto& scroll = uikit::UIScrollView::of(_collectionView.get());
  scroll.setContentOffset(scroll.clamped({0, y}));
  _isPlacing = false;
}

std::optional<PUPhotosGridViewController::Anchor> PUPhotosGridViewController::anchor() const {
  if (!_collectionView || _list->isEmpty()) return {};
  const auto& scroll = uikit::UIScrollView::of(_collectionView.get());
  const CGFloat top = scroll.contentOffset().y + scroll.adjustedContentInset().top;
  std::optional<Anchor> best;
  for (const auto& [element, view] : uikit::UICollectionView::of(_collectionView.get()).views()) {
    const auto index = element.kind.empty() ? _list->indexOf(element.path) : std::nullopt;
    if (!index || uikit::bottom(view->frame()) <= top) continue;
    if (!best || *index < best->index) best = Anchor{*index, view->frame().origin.y - top};
  }
  return best;
}

void PUPhotosGridViewController::restore(const Anchor& anchor) {
  const auto path = _list->pathOf(anchor.index);
  if (!path) return;
  measure(_collectionView);
  const auto& scroll = uikit::UIScrollView::of(_collectionView.get());
  scrollTo(layout().frameOfItem(*path).origin.y - scroll.adjustedContentInset().top - anchor.y);
}

void PUPhotosGridViewController::reveal(std::size_t index) {
  const auto path = _list->pathOf(index);
  if (!path) return;
  measure(_collectionView);
  const auto& scroll = uikit::UIScrollView::of(_collectionView.get());
  const uikit::EdgeInsets insets = scroll.adjustedContentInset();
  const CGRect frame = layout().frameOfItem(*path);
  const CGFloat top = scroll.contentOffset().y + insets.top;
  const CGFloat seen = _collectionView->bounds().size.height - insets.top - insets.bottom;
  if (frame.origin.y >= top && uikit::bottom(frame) <= top + seen) return;
  _staysAtEnd = false;
  scrollTo(uikit::middle(frame).y - seen / 2 - insets.top);
}

}  // namespace desktop::photos_ui
