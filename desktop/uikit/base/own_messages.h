// SPDX-License-Identifier: MIT
//
// Messages between the platform's own classes, which no application sends: who receives one is of
// any class below the one that answers it.
#pragma once

#include "bridge/uikit.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/scheduler.h"

namespace desktop::uikit {

class Canvas;

// Views.

inline void drawContent(UIView view, Canvas* canvas) {
  send<void, "drawContentOn:">(view, canvas);
}
inline void drawOverSubviews(UIView view, Canvas* canvas) {
  send<void, "drawOverSubviewsOn:">(view, canvas);
}
// Of a cell, or another view of a list.
inline void prepareForReuse(UIView view) {
  send<void, "prepareForReuse">(view);
}
// By a wheel; whether the view took it.
inline bool scrollBy(UIView view, CGPoint distance) {
  return send<bool, "_scrollBy:">(view, distance);
}
// Whether touches on views inside wait until it is clear that they do not scroll.
inline bool delaysTouches(UIView view) {
  return send<bool, "_delaysTouches">(view);
}
// The screen's size was another until now.
inline void screenDidResize(UIView window, CGSize before) {
  send<void, "_screenDidResizeFrom:">(window, before);
}

// Gesture recognisers.

inline void moveTo(UIGestureRecognizer recognizer, UIView view) {
  send<void, "moveToView:">(recognizer, view);
}
inline void leaveTouches(UIGestureRecognizer recognizer) {
  send<void, "_leaveTouches">(recognizer);
}
inline void viewIsGone(UIGestureRecognizer recognizer) {
  send<void, "_viewIsGone">(recognizer);
}

// Bars: an item, or their number, is another.

inline void itemChanged(UIView bar) {
  send<void, "_itemChanged">(bar);
}
inline void itemsChanged(UIView bar) {
  send<void, "_itemsChanged">(bar);
}

// Controllers.

inline void adjustScrollViews(UIViewController controller) {
  send<void, "_adjustScrollViews">(controller);
}
// To what a presented controller looks like on show, or before and after.
inline void showPresented(UIViewController controller, bool shown) {
  send<void, "_showPresented:">(controller, shown);
}
inline Seconds presentationDuration(UIViewController controller) {
  return send<Seconds, "_presentationDuration">(controller);
}
inline void updateBar(UIViewController tabs, bool animated) {
  send<void, "_updateBar:">(tabs, animated);
}

}  // namespace desktop::uikit
