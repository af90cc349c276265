// SPDX-License-Identifier: MIT
#include "desktop/uikit/ui_scroll_view.h"

#include <algorithm>

#include "bridge/block.h"
#include "bridge/class_builder.h"

namespace desktop::uikit {
namespace {

constexpr Seconds scrollTime = 0.3;

// One direction of clamping: from `least` as far as the content reaches beyond the room.
CGFloat clampedTo(CGFloat offset, CGFloat before, CGFloat content, CGFloat after, CGFloat room) {
  return std::clamp(offset, -before, std::max(-before, content + after - room));
}

}  // namespace

Class UIScrollView::classObject() {
  static const Class made =
      bridge::ClassBuilder<UIScrollView>("UIScrollView")
          .method<"contentOffset", &UIScrollView::contentOffset>()
          .method<"setContentOffset:", &UIScrollView::setContentOffset>()
          .method<"setContentOffset:animated:", &UIScrollView::setContentOffsetAnimated>()
          .method<"contentSize", &UIScrollView::contentSize>()
          .method<"setContentSize:", &UIScrollView::setContentSize>()
          .method<"contentInset", &UIScrollView::contentInset>()
          .method<"setContentInset:", &UIScrollView::setContentInset>()
          .method<"delegate", &UIScrollView::delegate>()
          .method<"setDelegate:", &UIScrollView::setDelegate>()
          .method<"isScrollEnabled", &UIScrollView::isScrollEnabled>()
          .method<"setScrollEnabled:", &UIScrollView::setScrollEnabled>()
          .method<"scrollRectToVisible:animated:", &UIScrollView::scrollRectToVisible>()
          .build();
  return made;
}

UIScrollView::UIScrollView(id self) : Bound(self) {
  UIView::of(self).layer().setMasksToBounds(true);
}

CGPoint UIScrollView::contentOffset() const {
  return UIView::of(self()).bounds().origin;
}

void UIScrollView::setContentOffset(CGPoint offset) {
  UIView& view = UIView::of(self());
  const CGRect before = view.bounds();
  view.setBounds({offset, before.size});
  if (view.bounds() == before) return;
  view.setNeedsLayout();
  if (bridge::respondsTo<"scrollViewDidScroll:">(_delegate))
    bridge::send<void, "scrollViewDidScroll:">(_delegate, self());
}

void UIScrollView::setContentOffsetAnimated(CGPoint offset, bool animated) {
  if (!animated) return bridge::send<void, "setContentOffset:">(self(), offset);
  const bridge::UIView me = self();
  bridge::UIView::animate(scrollTime, bridge::Block<void()>([me, offset] {
                            bridge::send<void, "setContentOffset:">(me, offset);
                          }));
}

void UIScrollView::setContentSize(CGSize size) {
  _contentSize = size;
}

void UIScrollView::setContentInset(EdgeInsets insets) {
  const CGPoint before = contentOffset();
  const bool wasAtTop = before.y == -_contentInset.top;
  _contentInset = insets;
  if (wasAtTop) bridge::send<void, "setContentOffset:">(self(), CGPoint{before.x, -insets.top});
}

CGPoint UIScrollView::clamped(CGPoint offset) const {
  const CGSize room = UIView::of(self()).bounds().size;
  return {
      clampedTo(offset.x, _contentInset.left, _contentSize.width, _contentInset.right, room.width),
      clampedTo(offset.y, _contentInset.top, _contentSize.height, _contentInset.bottom,
                room.height)};
}

bool UIScrollView::delaysTouches() const {
  const CGSize room = UIView::of(self()).bounds().size;
  const bool isLarger = _contentSize.width > room.width || _contentSize.height > room.height;
  return _delaysContentTouches && _isScrollEnabled && isLarger;
}

bool UIScrollView::scrollBy(CGPoint distance) {
  const CGPoint before = contentOffset();
  const CGPoint after = clamped(before + distance);
  if (!_isScrollEnabled || after == before) return false;
  bridge::send<void, "setContentOffset:">(self(), after);
  return true;
}

void UIScrollView::scrollRectToVisible(CGRect rect, bool animated) {
  const CGRect seen = UIView::of(self()).bounds();
  CGPoint offset = seen.origin;
  offset.x = std::max(std::min(offset.x, rect.origin.x), right(rect) - seen.size.width);
  offset.y = std::max(std::min(offset.y, rect.origin.y), bottom(rect) - seen.size.height);
  setContentOffsetAnimated(clamped(offset), animated);
}

}  // namespace desktop::uikit
