// SPDX-License-Identifier: MIT
//
// Layout from the top down, autoresizing, fitting, and the way of points through the tree.
#include <algorithm>
#include <cmath>

#include "desktop/uikit/base/own_messages.h"
#include "desktop/uikit/views/animator.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

// A pass can ask for another one; whoever never comes to rest waits for the next frame.
constexpr int maximalPasses = 8;

enum Mask : NSUInteger {
  leftMargin = 1,
  width = 2,
  rightMargin = 4,
  topMargin = 8,
  height = 16,
  bottomMargin = 32
};

struct Stretch {
  CGFloat origin;
  CGFloat length;
};

// One direction of autoresizing: what the superview gained goes to the flexible parts, in
// proportion to what they had.
Stretch stretched(Stretch old, CGFloat oldWhole, CGFloat newWhole, bool before, bool itself,
                  bool after) {
  const CGFloat gain = newWhole - oldWhole;
  const CGFloat behind = oldWhole - old.origin - old.length;
  const CGFloat flexible =
      (before ? old.origin : 0) + (itself ? old.length : 0) + (after ? behind : 0);
  const int parts = int{before} + int{itself} + int{after};
  if (parts == 0) return old;
  const auto share = [&](CGFloat part) {
    return flexible > 0 ? gain * part / flexible : gain / parts;
  };
  if (before) old.origin += share(old.origin);
  if (itself) old.length = std::max(0.0, old.length + share(old.length));
  return old;
}

}  // namespace

void UIViewState::resizeSubviews(CGSize oldSize) {
  const CGSize size = _own.bounds.size;
  const auto children = _subviews;
  for (const auto& child : children) {
    const NSUInteger mask = of(child.get())._autoresizingMask;
    if (mask == 0) continue;
    const CGRect frame = child->frame();
    const Stretch x = stretched({frame.origin.x, frame.size.width}, oldSize.width, size.width,
                                mask & leftMargin, mask & width, mask & rightMargin);
    const Stretch y = stretched({frame.origin.y, frame.size.height}, oldSize.height, size.height,
                                mask & topMargin, mask & height, mask & bottomMargin);
    child->setFrame({{x.origin, y.origin}, {x.length, y.length}});
  }
}

void UIViewState::layoutIfNeeded() {
  for (int pass = 0; pass < maximalPasses && layOut(); ++pass) {
  }
}

// Lays out this view and all below that need it; whether any did.
bool UIViewState::layOut() {
  const UIView me(self().get());
  bool didAny = _needsLayout;
  if (std::exchange(_needsLayout, false)) {
    const UIViewController controller(_controller.get());
    adjustScrollViews(controller);
    controller.viewWillLayoutSubviews();
    me.layoutSubviews();
    controller.viewDidLayoutSubviews();
  }
  const auto children = _subviews;
  for (const auto& child : children) didAny |= of(child.get()).layOut();
  return didAny;
}

CGSize UIViewState::sizeThatFits(CGSize) const {
  return _own.bounds.size;
}

void UIViewState::sizeToFit() {
  const UIView me(self().get());
  const CGSize size = me.sizeThatFits(_own.bounds.size);
  me.setFrame({me.frame().origin, size});
}

// Views that are hidden, nearly transparent, switched off or being animated take no touches.
UIView UIViewState::hitTest(CGPoint point, UIEvent event) {
  constexpr CGFloat leastAlpha = 0.01;
  const UIView me(self().get());
  if (_isHidden || !_isUserInteractionEnabled || _own.alpha < leastAlpha) return {};
  if (animator().isAnimating(me)) return {};
  if (!me.pointInside(point, event)) return {};
  for (auto child = _subviews.rbegin(); child != _subviews.rend(); ++child) {
    const CGPoint inChild = uikit::apply(inverse(of(child->get().get()).toSuperview()), point);
    const auto hit = child->get().hitTest(inChild, event);
    if (hit) return hit;
  }
  return me;
}

bool UIViewState::pointInside(CGPoint point, UIEvent) const {
  return contains(_own.bounds, point);
}

// No view stands for the screen.
CGPoint UIViewState::convertPointTo(CGPoint point, UIView view) const {
  const CGPoint onScreen = uikit::apply(toScreen(), point);
  return view ? uikit::apply(inverse(of(view.get()).toScreen()), onScreen) : onScreen;
}

CGPoint UIViewState::convertPointFrom(CGPoint point, UIView view) const {
  const CGPoint onScreen = view ? uikit::apply(of(view.get()).toScreen(), point) : point;
  return uikit::apply(inverse(toScreen()), onScreen);
}

CGRect UIViewState::convertRectTo(CGRect rect, UIView view) const {
  const CGRect onScreen = uikit::apply(toScreen(), rect);
  return view ? uikit::apply(inverse(of(view.get()).toScreen()), onScreen) : onScreen;
}

CGRect UIViewState::convertRectFrom(CGRect rect, UIView view) const {
  const CGRect onScreen = view ? uikit::apply(of(view.get()).toScreen(), rect) : rect;
  return uikit::apply(inverse(toScreen()), onScreen);
}

}  // namespace desktop::uikit
