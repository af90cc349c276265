// SPDX-License-Identifier: MIT
//
// The look and geometry of views, and the class. The tree is in ui_view_tree.cpp, layout and
// touches' way through the tree in ui_view_layout.cpp.
#include "desktop/uikit/views/ui_view.h"

#include <cmath>

#include "bridge/class_builder.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/graphics/canvas.h"
#include "desktop/uikit/graphics/encodings.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/views/animator.h"
#include "desktop/uikit/views/ca_layer.h"

namespace desktop::uikit {

Class UIView::classObject() {
  static const Class made =
      bridge::ClassBuilder<UIView>("UIView")
          .method<"init", &UIView::init>()
          .method<"initWithFrame:", &UIView::initWithFrame>()
          .method<"frame", &UIView::frame>()
          .method<"setFrame:", &UIView::setFrame>()
          .method<"bounds", &UIView::bounds>()
          .method<"setBounds:", &UIView::setBounds>()
          .method<"center", &UIView::center>()
          .method<"setCenter:", &UIView::setCenter>()
          .method<"transform", &UIView::transform>()
          .method<"setTransform:", &UIView::setTransform>()
          .method<"alpha", &UIView::alpha>()
          .method<"setAlpha:", &UIView::setAlpha>()
          .method<"isHidden", &UIView::isHidden>()
          .method<"setHidden:", &UIView::setHidden>()
          .method<"isOpaque", &UIView::isOpaque>()
          .method<"setOpaque:", &UIView::setOpaque>()
          .method<"backgroundColor", &UIView::backgroundColorObject>()
          .method<"setBackgroundColor:", &UIView::setBackgroundColor>()
          .method<"tintColor", &UIView::tintColor>()
          .method<"setTintColor:", &UIView::setTintColor>()
          .method<"clipsToBounds", &UIView::clipsToBounds>()
          .method<"setClipsToBounds:", &UIView::setClipsToBounds>()
          .method<"contentMode", &UIView::contentMode>()
          .method<"setContentMode:", &UIView::setContentMode>()
          .method<"layer", &UIView::layer>()
          .method<"tag", &UIView::tag>()
          .method<"setTag:", &UIView::setTag>()
          .method<"viewWithTag:", &UIView::viewWithTag>()
          .method<"autoresizingMask", &UIView::autoresizingMask>()
          .method<"setAutoresizingMask:", &UIView::setAutoresizingMask>()
          .method<"translatesAutoresizingMaskIntoConstraints", &UIView::translatesMask>()
          .method<"setTranslatesAutoresizingMaskIntoConstraints:", &UIView::setTranslatesMask>()
          .method<"isUserInteractionEnabled", &UIView::isUserInteractionEnabled>()
          .method<"setUserInteractionEnabled:", &UIView::setUserInteractionEnabled>()
          .method<"subviews", &UIView::subviewsArray>()
          .method<"superview", &UIView::superview>()
          .method<"window", &UIView::window>()
          .method<"isDescendantOfView:", &UIView::isDescendantOf>()
          .method<"addSubview:", &UIView::addSubview>()
          .method<"insertSubview:atIndex:", &UIView::insertSubviewAtIndex>()
          .method<"insertSubview:aboveSubview:", &UIView::insertAbove>()
          .method<"insertSubview:belowSubview:", &UIView::insertBelow>()
          .method<"bringSubviewToFront:", &UIView::bringToFront>()
          .method<"sendSubviewToBack:", &UIView::sendToBack>()
          .method<"removeFromSuperview", &UIView::removeFromSuperview>()
          .method<"willMoveToSuperview:", &UIView::willMoveToSuperview>()
          .method<"didMoveToSuperview", &UIView::didMoveToSuperview>()
          .method<"didMoveToWindow", &UIView::didMoveToWindow>()
          .method<"nextResponder", &UIView::nextResponder>()
          .method<"setNeedsLayout", &UIView::setNeedsLayout>()
          .method<"setNeedsDisplay", &UIView::setNeedsDisplay>()
          .method<"layoutSubviews", &UIView::layoutSubviews>()
          .method<"layoutIfNeeded", &UIView::layoutIfNeeded>()
          .method<"sizeThatFits:", &UIView::sizeThatFits>()
          .method<"sizeToFit", &UIView::sizeToFit>()
          .method<"hitTest:withEvent:", &UIView::hitTest>()
          .method<"pointInside:withEvent:", &UIView::pointInside>()
          .method<"convertPoint:toView:", &UIView::convertPointTo>()
          .method<"convertPoint:fromView:", &UIView::convertPointFrom>()
          .method<"convertRect:toView:", &UIView::convertRectTo>()
          .method<"convertRect:fromView:", &UIView::convertRectFrom>()
          .method<"_scrollBy:", &UIView::scrollBy>()
          .method<"_delaysTouches", &UIView::delaysTouches>()
          .method<"gestureRecognizers", &UIView::gestureRecognizersArray>()
          .method<"addGestureRecognizer:", &UIView::addGestureRecognizer>()
          .method<"removeGestureRecognizer:", &UIView::removeGestureRecognizer>()
          .method<"drawContentOn:", &UIView::drawContent>()
          .method<"drawOverSubviewsOn:", &UIView::drawOverSubviews>()
          .build();
  return made;
}

UIView::UIView(id self) : Bound(self) {
  _layer = bridge::makeNew<bridge::CALayer>();
  CALayer::of(_layer.get()).setView(bridge::UIView(self));
}

UIView::~UIView() {
  CALayer::of(_layer.get()).setView({});
  for (const auto& view : _subviews) of(view.get())._superview = {};
  for (const auto& recognizer : _gestureRecognizers)
    bridge::send<void, "_viewIsGone">(recognizer.get());
}

bridge::UIView UIView::init() {
  return bridge::send<bridge::UIView, "initWithFrame:">(self(), CGRect{});
}

bridge::UIView UIView::initWithFrame(CGRect frame) {
  const auto object = super<bridge::UIView, "init">();
  if (object) setFrame(frame);
  return object;
}

CGRect UIView::frame() const {
  const CGRect around = uikit::apply(
      _own.transform,
      CGRect{{-_own.bounds.size.width / 2, -_own.bounds.size.height / 2}, _own.bounds.size});
  return offset(around, _own.center);
}

void UIView::setFrame(CGRect frame) {
  if (!isFinite(frame)) frame = {};
  ViewAppearance next = _own;
  next.bounds.size = frame.size;
  next.center = middle(frame);
  become(next);
}

void UIView::setBounds(CGRect bounds) {
  if (!isFinite(bounds)) bounds = {};
  ViewAppearance next = _own;
  next.bounds = bounds;
  become(next);
}

void UIView::setCenter(CGPoint center) {
  ViewAppearance next = _own;
  if (std::isfinite(center.x) && std::isfinite(center.y)) next.center = center;
  become(next);
}

void UIView::setTransform(CGAffineTransform transform) {
  ViewAppearance next = _own;
  next.transform = transform;
  become(next);
}

void UIView::setAlpha(CGFloat alpha) {
  ViewAppearance next = _own;
  next.alpha = alpha > 0 ? std::min(alpha, 1.0) : 0;
  become(next);
}

void UIView::setBackgroundColor(bridge::UIColor color) {
  ViewAppearance next = _own;
  next.background = UIColor::valueOf(color);
  become(next);
}

void UIView::become(const ViewAppearance& appearance) {
  if (appearance == _own) return;
  setNeedsDisplay();
  const ViewAppearance before = _own;
  _own = appearance;
  animator().appearanceChanges(bridge::UIView(self().get()), before, _own);
  if (before.bounds.size != _own.bounds.size) {
    resizeSubviews(before.bounds.size);
    setNeedsLayout();
  }
  setNeedsDisplay();
}

ViewAppearance UIView::shown() const {
  return animator().shown(bridge::UIView(self().get()), _own);
}

CGAffineTransform UIView::toSuperview() const {
  const ViewAppearance seen = shown();
  const CGPoint mid = middle(seen.bounds);
  return concat(concat(translation({-mid.x, -mid.y}), seen.transform), translation(seen.center));
}

CGAffineTransform UIView::toScreen() const {
  CGAffineTransform all = toSuperview();
  for (bridge::UIView view = _superview; view; view = of(view.get())._superview)
    all = concat(all, of(view.get()).toSuperview());
  return all;
}

void UIView::setHidden(bool hidden) {
  if (hidden == _isHidden) return;
  setNeedsDisplay();
  _isHidden = hidden;
  setNeedsDisplay();
}

// What stands out of the bounds by a shadow is painted again too.
void UIView::setNeedsDisplay() const {
  if (!window()) return;
  const CALayer::Style& style = CALayer::of(_layer.get()).style();
  CGRect touched = shown().bounds;
  if (style.shadowOpacity > 0) {
    const CGFloat reach = 2 * style.shadowRadius + std::abs(style.shadowOffset.width) +
                          std::abs(style.shadowOffset.height) + 8;
    touched = inset(touched, -reach, -reach);
  }
  if (!clipsToBounds())
    for (const auto& view : _subviews) touched = unionOf(touched, of(view.get()).frame());
  screen().damage.add(uikit::apply(toScreen(), touched));
}

void UIView::drawContent(Canvas*) const {}

bridge::UIColor UIView::backgroundColorObject() const {
  return _own.background == Color{} ? bridge::UIColor() : UIColor::make(_own.background);
}

Color UIView::tint() const {
  if (_tintColor) return UIColor::valueOf(_tintColor);
  return _superview ? of(_superview.get()).tint() : colors::tint;
}

bridge::UIColor UIView::tintColor() const {
  if (_tintColor) return _tintColor;
  return _superview ? _superview.tintColor() : UIColor::make(colors::tint);
}

void UIView::setTintColor(bridge::UIColor color) {
  _tintColor = bridge::Owned<bridge::UIColor>::retain(color);
  setNeedsDisplay();
}

bool UIView::clipsToBounds() const {
  return CALayer::of(_layer.get()).masksToBounds();
}

void UIView::setClipsToBounds(bool clips) {
  _layer->setMasksToBounds(clips);
}

void UIView::setContentMode(NSInteger mode) {
  _contentMode = mode;
  setNeedsDisplay();
}

}  // namespace desktop::uikit
