// SPDX-License-Identifier: MIT
//
// What a view answers, and how its parts work together. What of it is seen changes at one place,
// become(), which tells the animator and has subviews follow. A view keeps its subviews alive and
// knows its superview without keeping it; coming and going is told before and after, and a view
// that leaves the window ends what was under way: animations and touches. Layout goes from the top
// down until it comes to rest.
#include "desktop/uikit/views/ui_view.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/own_messages.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/graphics/canvas.h"
#include "desktop/uikit/graphics/encodings.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/views/animator.h"
#include "desktop/uikit/views/autoresizing.h"
#include "desktop/uikit/views/ca_layer.h"
#include "desktop/uikit/views/view_animations.h"

namespace desktop::uikit {
namespace {

// A pass can ask for another one; whoever never comes to rest waits for the next frame.
constexpr int maximalPasses = 8;

// How far a shadow stands out of the bounds.
CGFloat reachOf(const CALayerState::Style& style) {
  if (!(style.shadowOpacity > 0)) return 0;
  return 2 * style.shadowRadius + std::abs(style.shadowOffset.width) +
         std::abs(style.shadowOffset.height) + 8;
}

// What a plain view answers to messages that are there for classes below to answer.
void nothing() {}
template <typename Ignored>
void nothingOf(Ignored) {}
bool no() {
  return false;
}
template <typename Ignored>
bool noTo(Ignored) {
  return false;
}

}  // namespace

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
          .method<"willMoveToSuperview:", &nothingOf<UIView>>()
          .method<"didMoveToSuperview", &nothing>()
          .method<"didMoveToWindow", &nothing>()
          .method<"nextResponder", &UIViewState::nextResponder>()
          .method<"setNeedsLayout", &UIViewState::setNeedsLayout>()
          .method<"setNeedsDisplay", &UIViewState::setNeedsDisplay>()
          .method<"layoutSubviews", &nothing>()
          .method<"layoutIfNeeded", &UIViewState::layoutIfNeeded>()
          .method<"sizeThatFits:", &UIViewState::sizeThatFits>()
          .method<"sizeToFit", &UIViewState::sizeToFit>()
          .method<"hitTest:withEvent:", &UIViewState::hitTest>()
          .method<"pointInside:withEvent:", &UIViewState::pointInside>()
          .method<"convertPoint:toView:", &UIViewState::convertTo<CGPoint>>()
          .method<"convertPoint:fromView:", &UIViewState::convertFrom<CGPoint>>()
          .method<"convertRect:toView:", &UIViewState::convertTo<CGRect>>()
          .method<"convertRect:fromView:", &UIViewState::convertFrom<CGRect>>()
          .method<"_scrollBy:", &noTo<CGPoint>>()
          .method<"_delaysTouches", &no>()
          .method<"gestureRecognizers", &UIViewState::gestureRecognizersArray>()
          .method<"addGestureRecognizer:", &UIViewState::addGestureRecognizer>()
          .method<"removeGestureRecognizer:", &UIViewState::removeGestureRecognizer>()
          .method<"drawContentOn:", &nothingOf<Canvas*>>()
          .method<"drawOverSubviewsOn:", &nothingOf<Canvas*>>()
          .classMethod<"animateWithDuration:animations:", &animateChanges>()
          .classMethod<"animateWithDuration:animations:completion:", &animateToCompletion>()
          .classMethod<"animateWithDuration:delay:options:animations:completion:",
                       &animateWithOptions>()
          .classMethod<"performWithoutAnimation:", &performWithoutAnimation>()
          .build();
  return made;
}

UIViewState::UIViewState(id object) : Bound(object) {
  _layer = makeNew<CALayer>();
  CALayerState::of(_layer.get()).setView(self());
}

UIViewState::~UIViewState() {
  CALayerState::of(_layer.get()).setView({});
  for (const auto& view : subviews()) of(view.get())._superview = {};
}

UIView UIViewState::init() {
  return initWith<"initWithFrame:">(self(), CGRect{});
}

UIView UIViewState::initWithFrame(CGRect frame) {
  const auto object = super<UIView, "init">();
  if (object) setFrame(frame);
  return object;
}

void UIViewState::become(const ViewAppearance& appearance) {
  if (appearance == _own) return;
  setNeedsDisplay();
  const ViewAppearance before = std::exchange(_own, appearance);
  animator().appearanceChanges(self(), before, _own);
  if (before.bounds.size != _own.bounds.size) {
    resizeSubviews(before.bounds.size);
    setNeedsLayout();
  }
  setNeedsDisplay();
}

ViewAppearance UIViewState::shown() const {
  return animator().shown(self(), _own);
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

// What stands out of the bounds is painted again too.
void UIViewState::setNeedsDisplay() const {
  if (!window()) return;
  const CGFloat reach = reachOf(CALayerState::of(_layer.get()).style());
  CGRect touched = inset(shown().bounds, -reach, -reach);
  if (!clipsToBounds())
    for (const auto& view : subviews()) touched = unionOf(touched, of(view.get()).frame());
  screen().damage.add(uikit::apply(toScreen(), touched));
}

void UIViewState::setBackgroundColor(UIColor color) {
  become(_own.withBackground(UIColorState::valueOf(color)));
}

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

UIView UIViewState::window() const {
  UIView top = self();
  while (const UIView above = of(top.get())._superview) top = above;
  return of(top.get())._isWindow ? top : UIView();
}

CGRect UIViewState::partInSight() const {
  const UIView shown = window();
  return shown ? intersection(bounds(), convertFrom(of(shown.get()).bounds(), shown)) : bounds();
}

bool UIViewState::isDescendantOf(UIView view) const {
  UIView at = self();
  while (at && at != view) at = of(at.get())._superview;
  return static_cast<bool>(at);
}

// A view that contains this one cannot become its subview.
void UIViewState::insertSubview(UIView view, std::size_t index) {
  if (!view || isDescendantOf(view)) return;
  const auto kept = Owned<UIView>::retain(view);
  UIViewState& child = of(view.get());
  const UIView windowBefore = child.window();
  if (child._superview) of(child._superview.get()).detach(view);
  view.willMoveToSuperview(self());
  _subviews.insert(view, index);
  child._superview = self();
  view.didMoveToSuperview();
  if (child.window() != windowBefore) child.tellMovedToWindow();
  setNeedsLayout();
  child.setNeedsDisplay();
}

void UIViewState::insertSubviewAtIndex(UIView view, NSInteger index) {
  insertSubview(view, static_cast<std::size_t>(std::max(index, 0L)));
}

void UIViewState::bringToFront(UIView view) {
  if (_subviews.bringToFront(view)) of(view.get()).setNeedsDisplay();
}

void UIViewState::sendToBack(UIView view) {
  if (_subviews.sendToBack(view)) of(view.get()).setNeedsDisplay();
}

void UIViewState::removeFromSuperview() {
  if (!_superview) return;
  const UIView me = self();
  const auto kept = Owned<UIView>::retain(me);
  const bool wasInWindow = static_cast<bool>(window());
  me.willMoveToSuperview(UIView());
  of(_superview.get()).detach(me);
  me.didMoveToSuperview();
  if (wasInWindow) tellMovedToWindow();
}

void UIViewState::detach(UIView subview) {
  of(subview.get()).setNeedsDisplay();
  of(subview.get())._superview = {};
  _subviews.remove(subview);
  setNeedsLayout();
}

// What leaves the window is no longer shown: its animations and gestures end there.
void UIViewState::tellMovedToWindow() {
  if (!window()) {
    animator().stop(self());
    _gestures.leaveTouches();
  }
  self().didMoveToWindow();
  const auto children = subviews();
  for (const auto& child : children) of(child.get()).tellMovedToWindow();
}

UIView UIViewState::viewWithTag(NSInteger tag) {
  if (_tag == tag) return self();
  for (const auto& view : subviews())
    if (const auto found = of(view.get()).viewWithTag(tag)) return found;
  return {};
}

UIResponder UIViewState::nextResponder() const {
  return _controller ? _controller : UIResponder(_superview.get());
}

void UIViewState::resizeSubviews(CGSize oldSize) {
  const auto children = subviews();
  for (const auto& child : children)
    if (const NSUInteger mask = of(child.get())._autoresizingMask)
      child->setFrame(autoresized(child->frame(), mask, oldSize, _own.bounds.size));
}

void UIViewState::layoutIfNeeded() {
  for (int pass = 0; pass < maximalPasses && layOut(); ++pass) {
  }
}

// Lays out this view and all below that need it; whether any did.
bool UIViewState::layOut() {
  bool didAny = _needsLayout;
  if (std::exchange(_needsLayout, false)) {
    const UIViewController controller(_controller.get());
    adjustScrollViews(controller);
    controller.viewWillLayoutSubviews();
    self().layoutSubviews();
    controller.viewDidLayoutSubviews();
  }
  const auto children = subviews();
  for (const auto& child : children) didAny |= of(child.get()).layOut();
  return didAny;
}

void UIViewState::sizeToFit() {
  const CGSize size = self().sizeThatFits(_own.bounds.size);
  self().setFrame({self().frame().origin, size});
}

// Views that are hidden, nearly transparent, switched off or being animated take no touches.
UIView UIViewState::hitTest(CGPoint point, UIEvent event) {
  constexpr CGFloat leastAlpha = 0.01;
  const UIView me = self();
  if (_isHidden || !_isUserInteractionEnabled || _own.alpha < leastAlpha) return {};
  if (animator().isAnimating(me)) return {};
  if (!me.pointInside(point, event)) return {};
  for (auto child = subviews().rbegin(); child != subviews().rend(); ++child) {
    const CGPoint inChild = uikit::apply(inverse(of(child->get().get()).toSuperview()), point);
    const auto hit = child->get().hitTest(inChild, event);
    if (hit) return hit;
  }
  return me;
}

// No view stands for the screen.
template <typename Place>
Place UIViewState::convertTo(Place place, UIView view) const {
  const Place onScreen = uikit::apply(toScreen(), place);
  return view ? uikit::apply(inverse(of(view.get()).toScreen()), onScreen) : onScreen;
}

template <typename Place>
Place UIViewState::convertFrom(Place place, UIView view) const {
  const Place onScreen = view ? uikit::apply(of(view.get()).toScreen(), place) : place;
  return uikit::apply(inverse(toScreen()), onScreen);
}

}  // namespace desktop::uikit
