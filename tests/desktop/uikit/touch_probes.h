// SPDX-License-Identifier: MIT
//
// Views and targets that write down what reaches them, and fingers that take their time.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "bridge/bound.h"
#include "desktop/uikit/touch/touch_dispatcher.h"
#include "tests/desktop/uikit/application_test.h"

namespace desktop::uikit {

// A view that takes its touches itself: "began", "moved", "ended", "cancelled".
class ProbeView : public Bound<ProbeView, UIView> {
 public:
  using Bound::Bound;
  static Class classObject();
  static Owned<UIView> make(CGRect frame);

  std::vector<std::string> touches;
  CGPoint last;        // where the last touch was, in the view
  NSInteger taps = 0;  // in a row, of the last touch

 private:
  void note(const char* what, NSSet set);
  void began(NSSet set, UIEvent) { note("began", set); }
  void moved(NSSet set, UIEvent) { note("moved", set); }
  void ended(NSSet set, UIEvent) { note("ended", set); }
  void cancelled(NSSet set, UIEvent) { note("cancelled", set); }
};

// A target and delegate. Of recognisers it notes the states ("began"), of controls "act".
class Probe : public Bound<Probe, NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();
  static Owned<NSObject> make();

  std::vector<std::string> told;
  std::vector<std::string> scrolling;  // what a scroll view says, without "scrollViewDidScroll:"
  int scrolls = 0;                     // scrollViewDidScroll:
  CGPoint location;                    // of the recogniser, in its view
  CGPoint translation;                 // of a pan
  bool letsBegin = true;
  bool letsReceive = true;
  bool letsTogether = false;
  std::function<void()> onAction;
  std::function<void(CGPoint*)> onEnd;  // may change where scrolling comes to rest

 private:
  void gesture(UIGestureRecognizer recognizer);
  void act();
  void actFor(NSObject sender);
  void actForEvent(NSObject sender, UIEvent event);
  bool shouldBegin(UIGestureRecognizer) { return letsBegin; }
  bool shouldReceive(UIGestureRecognizer, UITouch) { return letsReceive; }
  bool together(UIGestureRecognizer, UIGestureRecognizer) { return letsTogether; }
  void didScroll(UIView) { ++scrolls; }
  void willBeginDragging(UIView) { scrolling.push_back("will begin dragging"); }
  void willEndDragging(UIView, CGPoint velocity, CGPoint* target);
  void didEndDragging(UIView, bool willDecelerate);
  void didEndDecelerating(UIView) { scrolling.push_back("did end decelerating"); }
  void didEndAnimation(UIView) { scrolling.push_back("did end animation"); }
};

class TouchTest : public ApplicationTest {
 protected:
  static void wait(Seconds time) { application().advance(time); }
  static void tap(CGPoint point, Seconds time = 0.05);
  // Evenly, with the finger lifted at its end; resting there first where a rest is given.
  static void drag(CGPoint from, CGPoint to, Seconds time, Seconds rest = 0);

  static Owned<UIView> probeIn(UIView parent, CGRect frame);
  static Probe& of(const Owned<NSObject>& probe) { return Probe::of(probe.get()); }
  static ProbeView& of(const Owned<UIView>& view) { return ProbeView::of(view.get()); }
  template <Handle T>
  static Owned<T> recognize(UIView view, const Owned<NSObject>& probe) {
    auto recognizer = makeRecognizer<T>(probe.get(), selector<"gesture:">());
    view.addGestureRecognizer(recognizer);
    return recognizer;
  }

  Owned<NSObject> probe = Probe::make();
};

}  // namespace desktop::uikit
