// SPDX-License-Identifier: MIT
#include "tests/desktop/uikit/touch_probes.h"

#include "bridge/class_builder.h"
#include "desktop/uikit/touch/ui_pan_gesture_recognizer.h"

namespace desktop::uikit {

Class ProbeView::classObject() {
  static const Class made = ClassBuilder<ProbeView>("ProbeView")
                                .method<"touchesBegan:withEvent:", &ProbeView::began>()
                                .method<"touchesMoved:withEvent:", &ProbeView::moved>()
                                .method<"touchesEnded:withEvent:", &ProbeView::ended>()
                                .method<"touchesCancelled:withEvent:", &ProbeView::cancelled>()
                                .build();
  return made;
}

Owned<UIView> ProbeView::make(CGRect frame) {
  return Owned<UIView>::adopt(
      send<UIView, "initWithFrame:">(send<id, "alloc">(classObject()), frame));
}

void ProbeView::note(const char* what, NSSet set) {
  touches.emplace_back(what);
  const UITouch touch(set.anyObject().get());
  last = touch.locationIn(self());
  taps = send<NSInteger, "tapCount">(touch);
}

Class Probe::classObject() {
  static const Class made =
      ClassBuilder<Probe>("Probe")
          .method<"gesture:", &Probe::gesture>()
          .method<"act", &Probe::act>()
          .method<"act:", &Probe::actFor>()
          .method<"act:event:", &Probe::actForEvent>()
          .method<"gestureRecognizerShouldBegin:", &Probe::shouldBegin>()
          .method<"gestureRecognizer:shouldReceiveTouch:", &Probe::shouldReceive>()
          .method<"gestureRecognizer:shouldRecognizeSimultaneouslyWithGestureRecognizer:",
                  &Probe::together>()
          .method<"scrollViewDidScroll:", &Probe::didScroll>()
          .method<"scrollViewWillBeginDragging:", &Probe::willBeginDragging>()
          .method<"scrollViewWillEndDragging:withVelocity:targetContentOffset:",
                  &Probe::willEndDragging>()
          .method<"scrollViewDidEndDragging:willDecelerate:", &Probe::didEndDragging>()
          .method<"scrollViewDidEndDecelerating:", &Probe::didEndDecelerating>()
          .method<"scrollViewDidEndScrollingAnimation:", &Probe::didEndAnimation>()
          .build();
  return made;
}

Owned<NSObject> Probe::make() {
  registerUIKit();
  return Owned<NSObject>::adopt(send<NSObject, "new">(classObject()));
}

void Probe::gesture(UIGestureRecognizer recognizer) {
  constexpr const char* names[] = {"possible", "began", "changed", "ended", "cancelled", "failed"};
  told.emplace_back(names[recognizer.state()]);
  const auto view = send<UIView, "view">(recognizer);
  location = recognizer.locationIn(view);
  if (isKindOf(recognizer, UIPanGestureRecognizerState::classObject()))
    translation = UIPanGestureRecognizer(recognizer.get()).translationIn(view);
  if (onAction) onAction();
}

void Probe::act() {
  told.emplace_back("act");
  if (onAction) onAction();
}

void Probe::actFor(NSObject sender) {
  told.emplace_back(sender ? "act:" : "act: without a sender");
  if (onAction) onAction();
}

void Probe::actForEvent(NSObject sender, UIEvent event) {
  told.emplace_back(sender && event ? "act:event:" : "act:event: without an event");
  if (onAction) onAction();
}

void Probe::willEndDragging(UIView, CGPoint, CGPoint* target) {
  if (onEnd) onEnd(target);
}

void Probe::didEndDragging(UIView, bool willDecelerate) {
  scrolling.emplace_back(willDecelerate ? "did end dragging, goes on" : "did end dragging");
}

void TouchTest::tap(CGPoint point, Seconds time) {
  touches().down(point);
  wait(time);
  touches().up(point);
}

void TouchTest::drag(CGPoint from, CGPoint to, Seconds time, Seconds rest) {
  constexpr int steps = 10;
  touches().down(from);
  for (int step = 1; step <= steps; ++step) {
    wait(time / steps);
    const double part = static_cast<double>(step) / steps;
    touches().move({from.x + (to.x - from.x) * part, from.y + (to.y - from.y) * part});
  }
  if (rest > 0) wait(rest);
  touches().up(to);
}

Owned<UIView> TouchTest::probeIn(UIView parent, CGRect frame) {
  auto view = ProbeView::make(frame);
  parent.addSubview(view);
  return view;
}

}  // namespace desktop::uikit
