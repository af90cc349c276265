// SPDX-License-Identifier: MIT
//
// UIScrollView: a window onto content that may be larger than it. The content offset is the origin
// of the bounds.
#pragma once

#include "bridge/bound.h"
#include "desktop/uikit/ui_view.h"

namespace desktop::uikit {

// Distances from the edges inwards, in points.
struct EdgeInsets {
  CGFloat top = 0;
  CGFloat left = 0;
  CGFloat bottom = 0;
  CGFloat right = 0;
  bool operator==(const EdgeInsets&) const = default;
};

class UIScrollView : public bridge::Bound<UIScrollView, bridge::UIView> {
 public:
  explicit UIScrollView(id self);
  static Class classObject();

  CGPoint contentOffset() const;
  // Tells the delegate scrollViewDidScroll:. Any offset is taken.
  void setContentOffset(CGPoint offset);
  CGSize contentSize() const { return _contentSize; }
  void setContentSize(CGSize size);
  EdgeInsets contentInset() const { return _contentInset; }
  void setContentInset(EdgeInsets insets);
  // The offset nearest to this one that shows no room outside content and insets.
  CGPoint clamped(CGPoint offset) const;
  // Scrolls by a distance as far as there is content: what a wheel does. Whether it moved.
  bool scrollBy(CGPoint distance);

  bridge::NSObject delegate() const { return _delegate; }
  bool isScrollEnabled() const { return _isScrollEnabled; }
  // Whether touches on the content wait until it is clear that they do not scroll.
  bool delaysTouches() const;

 private:
  void setContentOffsetAnimated(CGPoint offset, bool animated);
  void setDelegate(bridge::NSObject delegate) { _delegate = delegate; }
  void setScrollEnabled(bool enabled) { _isScrollEnabled = enabled; }
  void scrollRectToVisible(CGRect rect, bool animated);

  CGSize _contentSize;
  EdgeInsets _contentInset;
  bridge::NSObject _delegate;  // borrowed
  bool _isScrollEnabled = true;
  bool _delaysContentTouches = true;
};

}  // namespace desktop::uikit

template <>
struct bridge::Encoding<desktop::uikit::EdgeInsets> {
  static constexpr FixedString text = "{UIEdgeInsets=dddd}";
};
