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
#include "desktop/platform.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/base/own_messages.h"
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

UIView TouchDispatcher::viewAt(CGPoint point, UIEvent event) const {
  const auto windows = UIApplication::sharedApplication().windows();
  for (NSUInteger index = windows.count(); index-- > 0;) {
    const UIView window(windows.at(index).get());
    const auto hit = window.hitTest(fromScreen(point, window), event);
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
  const auto event = UIEventState::make();
  const UIView view = viewAt(point, event);
  if (!view) return;
  _taps = tapsWith(point);
  const auto touch = UITouchState::make(view, point, _taps);
  UIEventState::of(event.get()).setTouch(touch);
  const auto session = std::make_shared<TouchSession>(touch, event);
  _current = session;
  _sessions.push_back(session);
  session->deliver(UITouchState::began);
}

void TouchDispatcher::move(CGPoint point) {
  if (!_current || !isFinite(point)) return;
  const Turn turn(*this);
  const Session session = _current;
  UITouchState& touch = UITouchState::of(session->touch());
  if (touch.location() == point) return;
  touch.moveTo(point);
  session->deliver(UITouchState::moved);
}

void TouchDispatcher::up(CGPoint point) {
  if (!_current || !isFinite(point)) return;
  finish(point, false);
}

void TouchDispatcher::cancel() {
  if (!_current) return;
  finish(UITouchState::of(_current->touch()).location(), true);
}

void TouchDispatcher::finish(CGPoint point, bool isCancelled) {
  const Turn turn(*this);
  const Session session = std::exchange(_current, nullptr);
  UITouchState::of(session->touch()).moveTo(point);
  _lastUp = point;
  _lastUpTime = scheduler().now();
  if (isCancelled) _taps = 0;
  session->deliver(isCancelled ? UITouchState::cancelled : UITouchState::ended);
}

void TouchDispatcher::scroll(CGPoint at, CGPoint distance) {
  if (!isFinite(at) || !isFinite(distance)) return;
  const Turn turn(*this);
  UIView view = viewAt(at, UIEventState::make());
  for (; view; view = UIViewState::of(view).superview())
    if (scrollBy(view, distance)) return;
}

void TouchDispatcher::abandon() {
  _current = nullptr;
  _taps = 0;
  const auto sessions = std::exchange(_sessions, {});
  for (const Session& session : sessions)
    for (const auto& recognizer : session->recognizers())
      UIGestureRecognizerState::of(recognizer.get()).startAnew();
}

TouchDispatcher::Recognizers TouchDispatcher::rivalsOf(UIGestureRecognizer recognizer) const {
  Recognizers rivals;
  for (const Session& session : _sessions) {
    if (!session->has(recognizer)) continue;
    for (const auto& other : session->recognizers())
      if (other.get() != recognizer) rivals.push_back(other);
  }
  return rivals;
}

bool TouchDispatcher::takesPart(UIGestureRecognizer recognizer) const {
  return std::ranges::any_of(_sessions,
                             [&](const Session& session) { return session->has(recognizer); });
}

UIView TouchDispatcher::touchedViewOf(UIGestureRecognizer recognizer) const {
  UIView view;
  for (const Session& session : _sessions)
    if (session->has(recognizer)) view = UITouchState::of(session->touch()).view();
  return view;
}

void TouchDispatcher::takeFromViews(UIGestureRecognizer recognizer) {
  const Turn turn(*this);
  const auto present = _sessions;
  for (const Session& session : present)
    if (session->has(recognizer)) session->cancelInView();
}

void TouchDispatcher::forget(UIGestureRecognizer recognizer) {
  if (!takesPart(recognizer)) return;
  const Turn turn(*this);
  const auto kept = Owned<UIGestureRecognizer>::retain(recognizer);
  for (const Session& session : _sessions) session->drop(recognizer);
  UIGestureRecognizerState::of(recognizer).startAnew();
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
      moved |= UIGestureRecognizerState::of(recognizer.get()).tryAgain();
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
    UIGestureRecognizerState& state = UIGestureRecognizerState::of(recognizer.get());
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
