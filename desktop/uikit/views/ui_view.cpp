// SPDX-License-Identifier: MIT
//
// The look and geometry of views, and the class. The tree is in ui_view_tree.cpp, layout and
// touches' way through the tree in ui_view_layout.cpp.
#include "desktop/uikit/views/ui_view.h"

#include <cmath>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/own_messages.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/graphics/canvas.h"
#include "desktop/uikit/graphics/encodings.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/views/animator.h"
#include "desktop/uikit/views/ca_layer.h"

namespace desktop::uikit {

Class UIViewState::classObject() {
  static const Class made =
      ClassBuilder<UIViewState>("UIView")
          .method<"init", &UIViewState::init>()
          .method<"initWithFrame:", &UIViewState::initWithFrame>()
          .method<"frame", &UIViewState::frame>()
          .method<"setFrame:", &UIViewState::setFrame>()
          .method<"bounds", &UIViewState::bounds>()
          .method<"setBounds:", &UIViewState::setBounds>()
          .method<"center", &UIViewState::center>()
          .method<"setCenter:", &UIViewState::setCenter>()
          .method<"transform", &UIViewState::transform>()
          .method<"setTransform:", &UIViewState::setTransform>()
          .method<"alpha", &UIViewState::alpha>()
          .method<"setAlpha:", &UIViewState::setAlpha>()
          .method<"isHidden", &UIViewState::isHidden>()
          .method<"setHidden:", &UIViewState::setHidden>()
          .method<"isOpaque", &UIViewState::isOpaque>()
          .method<"setOpaque:", &UIViewState::setOpaque>()
          .method<"backgroundColor", &UIViewState::backgroundColorObject>()
          .method<"setBackgroundColor:", &UIViewState::setBackgroundColor>()
          .method<"tintColor", &UIViewState::tintColor>()
          .method<"setTintColor:", &UIViewState::setTintColor>()
          .method<"clipsToBounds", &UIViewState::clipsToBounds>()
          .method<"setClipsToBounds:", &UIViewState::setClipsToBounds>()
          .method<"contentMode", &UIViewState::contentMode>()
          .method<"setContentMode:", &UIViewState::setContentMode>()
          .method<"layer", &UIViewState::layer>()
          .method<"tag", &UIViewState::tag>()
          .method<"setTag:", &UIViewState::setTag>()
          .method<"viewWithTag:", &UIViewState::viewWithTag>()
          .method<"autoresizingMask", &UIViewState::autoresizingMask>()
          .method<"setAutoresizingMask:", &UIViewState::setAutoresizingMask>()
          .method<"translatesAutoresizingMaskIntoConstraints", &UIViewState::translatesMask>()
          .method<"setTranslatesAutoresizingMaskIntoConstraints:",
                  &UIViewState::setTranslatesMask>()
          .method<"isUserInteractionEnabled", &UIViewState::isUserInteractionEnabled>()
          .method<"setUserInteractionEnabled:", &UIViewState::setUserInteractionEnabled>()
          .method<"subviews", &UIViewState::subviewsArray>()
          .method<"superview", &UIViewState::superview>()
          .method<"window", &UIViewState::window>()
          .method<"isDescendantOfView:", &UIViewState::isDescendantOf>()
          .method<"addSubview:", &UIViewState::addSubview>()
          .method<"insertSubview:atIndex:", &UIViewState::insertSubviewAtIndex>()
          .method<"insertSubview:aboveSubview:", &UIViewState::insertAbove>()
          .method<"insertSubview:belowSubview:", &UIViewState::insertBelow>()
          .method<"bringSubviewToFront:", &UIViewState::bringToFront>()
          .method<"sendSubviewToBack:", &UIViewState::sendToBack>()
          .method<"removeFromSuperview", &UIViewState::removeFromSuperview>()
          .method<"willMoveToSuperview:", &UIViewState::willMoveToSuperview>()
          .method<"didMoveToSuperview", &UIViewState::didMoveToSuperview>()
          .method<"didMoveToWindow", &UIViewState::didMoveToWindow>()
          .method<"nextResponder", &UIViewState::nextResponder>()
          .method<"setNeedsLayout", &UIViewState::setNeedsLayout>()
          .method<"setNeedsDisplay", &UIViewState::setNeedsDisplay>()
          .method<"layoutSubviews", &UIViewState::layoutSubviews>()
          .method<"layoutIfNeeded", &UIViewState::layoutIfNeeded>()
          .method<"sizeThatFits:", &UIViewState::sizeThatFits>()
          .method<"sizeToFit", &UIViewState::sizeToFit>()
          .method<"hitTest:withEvent:", &UIViewState::hitTest>()
          .method<"pointInside:withEvent:", &UIViewState::pointInside>()
          .method<"convertPoint:toView:", &UIViewState::convertPointTo>()
          .method<"convertPoint:fromView:", &UIViewState::convertPointFrom>()
          .method<"convertRect:toView:", &UIViewState::convertRectTo>()
          .method<"convertRect:fromView:", &UIViewState::convertRectFrom>()
          .method<"_scrollBy:", &UIViewState::scrollBy>()
          .method<"_delaysTouches", &UIViewState::delaysTouches>()
          .method<"gestureRecognizers", &UIViewState::gestureRecognizersArray>()
          .method<"addGestureRecognizer:", &UIViewState::addGestureRecognizer>()
          .method<"removeGestureRecognizer:", &UIViewState::removeGestureRecognizer>()
          .method<"drawContentOn:", &UIViewState::drawContent>()
          .method<"drawOverSubviewsOn:", &UIViewState::drawOverSubviews>()
          .build();
  return made;
}

UIViewState::UIViewState(id self) : Bound(self) {
  _layer = makeNew<CALayer>();
  CALayerState::of(_layer.get()).setView(UIView(self));
}

UIViewState::~UIViewState() {
  CALayerState::of(_layer.get()).setView({});
  for (const auto& view : _subviews) of(view.get())._superview = {};
  for (const auto& recognizer : _gestureRecognizers) viewIsGone(recognizer.get());
}

UIView UIViewState::init() {
  return initWith<"initWithFrame:">(self(), CGRect{});
}

UIView UIViewState::initWithFrame(CGRect frame) {
  const auto object = super<UIView, "init">();
  if (object) setFrame(frame);
  return object;
}

CGRect UIViewState::frame() const {
  const CGRect around = uikit::apply(
      _own.transform,
      CGRect{{-_own.bounds.size.width / 2, -_own.bounds.size.height / 2}, _own.bounds.size});
  return offset(around, _own.center);
}

void UIViewState::setFrame(CGRect frame) {
  if (!isFinite(frame)) frame = {};
  ViewAppearance next = _own;
  next.bounds.size = frame.size;
  next.center = middle(frame);
  become(next);
}

void UIViewState::setBounds(CGRect bounds) {
  if (!isFinite(bounds)) bounds = {};
  ViewAppearance next = _own;
  next.bounds = bounds;
  become(next);
}

void UIViewState::setCenter(CGPoint center) {
  ViewAppearance next = _own;
  if (std::isfinite(center.x) && std::isfinite(center.y)) next.center = center;
  become(next);
}

void UIViewState::setTransform(CGAffineTransform transform) {
  ViewAppearance next = _own;
  next.transform = transform;
  become(next);
}

void UIViewState::setAlpha(CGFloat alpha) {
  ViewAppearance next = _own;
  next.alpha = alpha > 0 ? std::min(alpha, 1.0) : 0;
  become(next);
}

void UIViewState::setBackgroundColor(UIColor color) {
  ViewAppearance next = _own;
  next.background = UIColorState::valueOf(color);
  become(next);
}

void UIViewState::become(const ViewAppearance& appearance) {
  if (appearance == _own) return;
  setNeedsDisplay();
  const ViewAppearance before = _own;
  _own = appearance;
  animator().appearanceChanges(UIView(self().get()), before, _own);
  if (before.bounds.size != _own.bounds.size) {
    resizeSubviews(before.bounds.size);
    setNeedsLayout();
  }
  setNeedsDisplay();
}

ViewAppearance UIViewState::shown() const {
  return animator().shown(UIView(self().get()), _own);
}

CGAffineTransform UIViewState::toSuperview() const {
  const ViewAppearance seen = shown();
  const CGPoint mid = middle(seen.bounds);
  return concat(concat(translation({-mid.x, -mid.y}), seen.transform), translation(seen.center));
}

CGAffineTransform UIViewState::toScreen() const {
  CGAffineTransform all = toSuperview();
  for (UIView view = _superview; view; view = of(view.get())._superview)
    all = concat(all, of(view.get()).toSuperview());
  return all;
}

void UIViewState::setHidden(bool hidden) {
  if (hidden == _isHidden) return;
  setNeedsDisplay();
  _isHidden = hidden;
  setNeedsDisplay();
}

// What stands out of the bounds by a shadow is painted again too.
void UIViewState::setNeedsDisplay() const {
  if (!window()) return;
  const CALayerState::Style& style = CALayerState::of(_layer.get()).style();
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

void UIViewState::drawContent(Canvas*) const {}

UIColor UIViewState::backgroundColorObject() const {
  return _own.background == Color{} ? UIColor() : UIColorState::make(_own.background);
}

Color UIViewState::tint() const {
  if (_tintColor) return UIColorState::valueOf(_tintColor);
  return _superview ? of(_superview.get()).tint() : colors::tint;
}

UIColor UIViewState::tintColor() const {
  if (_tintColor) return _tintColor;
  return _superview ? _superview.tintColor() : UIColorState::make(colors::tint);
}

void UIViewState::setTintColor(UIColor color) {
  _tintColor = Owned<UIColor>::retain(color);
  setNeedsDisplay();
}

bool UIViewState::clipsToBounds() const {
  return CALayerState::of(_layer.get()).masksToBounds();
}

void UIViewState::setClipsToBounds(bool clips) {
  _layer->setMasksToBounds(clips);
}

void UIViewState::setContentMode(NSInteger mode) {
  _contentMode = mode;
  setNeedsDisplay();
}

}  // namespace desktop::uikit
