// SPDX-License-Identifier: MIT
//
// Each finger that comes down begins a session; sessions stay until all recognisers that took part
// have decided, also after the finger left. At the end of a turn those that are done are taken out,
// again and again until nothing moves on, since one recogniser's decision frees another.
#include "desktop/uikit/touch/touch_dispatcher.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "bridge/uikit/ui_controllers.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/base/scheduler.h"
#include "desktop/uikit/touch/touch_session.h"
#include "desktop/uikit/touch/ui_event.h"
#include "desktop/uikit/touch/ui_gesture_recognizer.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

constexpr Seconds tapInterval = 0.35;  // between taps that count together
constexpr CGFloat tapDistance = 45;    // points
constexpr int maximalPasses = 16;      // of decisions that lead to decisions

bool isFinite(CGPoint point) {
  return std::isfinite(point.x) && std::isfinite(point.y);
}

}  // namespace

TouchDispatcher::TouchDispatcher() = default;
TouchDispatcher::~TouchDispatcher() = default;

void TouchDispatcher::endTurn() {
  if (_turns == 1) tidy();
  --_turns;
}

bridge::UIView TouchDispatcher::viewAt(CGPoint point, bridge::UIEvent event) const {
  const auto windows = bridge::UIApplication::sharedApplication().windows();
  for (NSUInteger index = windows.count(); index-- > 0;) {
    const bridge::UIView window(windows.at(index).get());
    const auto hit = bridge::send<bridge::UIView, "hitTest:withEvent:">(
        window, fromScreen(point, window), event);
    if (hit) return hit;
  }
  return {};
}

NSInteger TouchDispatcher::tapsWith(CGPoint point) const {
  const bool isNear = std::hypot(point.x - _lastUp.x, point.y - _lastUp.y) <= tapDistance;
  const bool isSoon = scheduler().now() - _lastUpTime <= tapInterval;
  return _taps > 0 && isNear && isSoon ? _taps + 1 : 1;
}

void TouchDispatcher::down(CGPoint point) {
  if (!isFinite(point)) return;
  cancel();
  const Turn turn(*this);
  const auto event = UIEvent::make();
  const bridge::UIView view = viewAt(point, event);
  if (!view) return;
  _taps = tapsWith(point);
  const auto touch = UITouch::make(view, point, _taps);
  UIEvent::of(event.get()).setTouch(touch);
  const auto session = std::make_shared<TouchSession>(touch, event);
  _current = session;
  _sessions.push_back(session);
  session->deliver(UITouch::began);
}

void TouchDispatcher::move(CGPoint point) {
  if (!_current || !isFinite(point)) return;
  const Turn turn(*this);
  const Session session = _current;
  UITouch& touch = UITouch::of(session->touch());
  if (touch.location() == point) return;
  touch.moveTo(point);
  session->deliver(UITouch::moved);
}

void TouchDispatcher::up(CGPoint point) {
  if (!_current || !isFinite(point)) return;
  finish(point, false);
}

void TouchDispatcher::cancel() {
  if (!_current) return;
  finish(UITouch::of(_current->touch()).location(), true);
}

void TouchDispatcher::finish(CGPoint point, bool isCancelled) {
  const Turn turn(*this);
  const Session session = std::exchange(_current, nullptr);
  UITouch::of(session->touch()).moveTo(point);
  _lastUp = point;
  _lastUpTime = scheduler().now();
  if (isCancelled) _taps = 0;
  session->deliver(isCancelled ? UITouch::cancelled : UITouch::ended);
}

void TouchDispatcher::scroll(CGPoint at, CGPoint distance) {
  if (!isFinite(at) || !isFinite(distance)) return;
  const Turn turn(*this);
  bridge::UIView view = viewAt(at, UIEvent::make());
  for (; view; view = UIView::of(view).superview())
    if (bridge::send<bool, "_scrollBy:">(view, distance)) return;
}

void TouchDispatcher::abandon() {
  _current = nullptr;
  _taps = 0;
  const auto sessions = std::exchange(_sessions, {});
  for (const Session& session : sessions)
    for (const auto& recognizer : session->recognizers())
      UIGestureRecognizer::of(recognizer.get()).startAnew();
}

TouchDispatcher::Recognizers TouchDispatcher::rivalsOf(
    bridge::UIGestureRecognizer recognizer) const {
  Recognizers rivals;
  for (const Session& session : _sessions) {
    if (!session->has(recognizer)) continue;
    for (const auto& other : session->recognizers())
      if (other.get() != recognizer) rivals.push_back(other);
  }
  return rivals;
}

bool TouchDispatcher::takesPart(bridge::UIGestureRecognizer recognizer) const {
  return std::ranges::any_of(_sessions,
                             [&](const Session& session) { return session->has(recognizer); });
}

bridge::UIView TouchDispatcher::touchedViewOf(bridge::UIGestureRecognizer recognizer) const {
  bridge::UIView view;
  for (const Session& session : _sessions)
    if (session->has(recognizer)) view = UITouch::of(session->touch()).view();
  return view;
}

void TouchDispatcher::takeFromViews(bridge::UIGestureRecognizer recognizer) {
  const Turn turn(*this);
  const auto present = _sessions;
  for (const Session& session : present)
    if (session->has(recognizer)) session->cancelInView();
}

void TouchDispatcher::forget(bridge::UIGestureRecognizer recognizer) {
  if (!takesPart(recognizer)) return;
  const Turn turn(*this);
  const auto kept = bridge::Owned<bridge::UIGestureRecognizer>::retain(recognizer);
  for (const Session& session : _sessions) session->drop(recognizer);
  UIGestureRecognizer::of(recognizer).startAnew();
}

void TouchDispatcher::tidy() {
  for (int pass = 0; pass < maximalPasses && tidyOnce(); ++pass) {
  }
}

// Whether anything moved on.
bool TouchDispatcher::tidyOnce() {
  bool moved = false;
  const auto present = _sessions;
  for (const Session& session : present) {
    const auto recognizers = session->recognizers();
    for (const auto& recognizer : recognizers)
      moved |= UIGestureRecognizer::of(recognizer.get()).tryAgain();
    moved |= session->flush();
  }
  if (moved) return true;
  for (const Session& session : present) release(session);
  return std::erase_if(_sessions, [](const Session& session) { return !session->isOpen(); }) > 0;
}

// Those who have decided about a finger that left are ready for the next one.
void TouchDispatcher::release(const Session& session) {
  if (session->isFingerDown()) return;
  const auto recognizers = session->recognizers();
  for (const auto& recognizer : recognizers) {
    UIGestureRecognizer& state = UIGestureRecognizer::of(recognizer.get());
    if (state.isUndecided()) continue;
    session->drop(recognizer);
    if (!takesPart(recognizer)) state.startAnew();
  }
}

TouchDispatcher& touches() {
  static auto& made = *new TouchDispatcher;
  return made;
}

GestureArbiter& gestureArbiter() {
  return touches();
}

}  // namespace desktop::uikit
