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
class ProbeView : public bridge::Bound<ProbeView, bridge::UIView> {
 public:
  using Bound::Bound;
  static Class classObject();
  static bridge::Owned<bridge::UIView> make(CGRect frame);

  std::vector<std::string> touches;
  CGPoint last;        // where the last touch was, in the view
  NSInteger taps = 0;  // in a row, of the last touch

 private:
  void note(const char* what, bridge::NSSet set);
  void began(bridge::NSSet set, bridge::UIEvent) { note("began", set); }
  void moved(bridge::NSSet set, bridge::UIEvent) { note("moved", set); }
  void ended(bridge::NSSet set, bridge::UIEvent) { note("ended", set); }
  void cancelled(bridge::NSSet set, bridge::UIEvent) { note("cancelled", set); }
};

// A target and delegate. Of recognisers it notes the states ("began"), of controls "act".
class Probe : public bridge::Bound<Probe, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();
  static bridge::Owned<bridge::NSObject> make();

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
  void gesture(bridge::UIGestureRecognizer recognizer);
  void act();
  void actFor(bridge::NSObject sender);
  void actForEvent(bridge::NSObject sender, bridge::UIEvent event);
  bool shouldBegin(bridge::UIGestureRecognizer) { return letsBegin; }
  bool shouldReceive(bridge::UIGestureRecognizer, bridge::UITouch) { return letsReceive; }
  bool together(bridge::UIGestureRecognizer, bridge::UIGestureRecognizer) { return letsTogether; }
  void didScroll(bridge::UIView) { ++scrolls; }
  void willBeginDragging(bridge::UIView) { scrolling.push_back("will begin dragging"); }
  void willEndDragging(bridge::UIView, CGPoint velocity, CGPoint* target);
  void didEndDragging(bridge::UIView, bool willDecelerate);
  void didEndDecelerating(bridge::UIView) { scrolling.push_back("did end decelerating"); }
  void didEndAnimation(bridge::UIView) { scrolling.push_back("did end animation"); }
};

class TouchTest : public ApplicationTest {
 protected:
  static void wait(Seconds time) { application().advance(time); }
  static void tap(CGPoint point, Seconds time = 0.05);
  // Evenly, with the finger lifted at its end; resting there first where a rest is given.
  static void drag(CGPoint from, CGPoint to, Seconds time, Seconds rest = 0);

  static bridge::Owned<bridge::UIView> probeIn(bridge::UIView parent, CGRect frame);
  static Probe& of(const bridge::Owned<bridge::NSObject>& probe) { return Probe::of(probe.get()); }
  static ProbeView& of(const bridge::Owned<bridge::UIView>& view) {
    return ProbeView::of(view.get());
  }
  template <bridge::Handle T>
  static bridge::Owned<T> recognize(bridge::UIView view,
                                    const bridge::Owned<bridge::NSObject>& probe) {
    auto recognizer = handles::makeRecognizer<T>(probe.get(), bridge::selector<"gesture:">());
    view.addGestureRecognizer(recognizer);
    return recognizer;
  }

  bridge::Owned<bridge::NSObject> probe = Probe::make();
};

}  // namespace desktop::uikit
