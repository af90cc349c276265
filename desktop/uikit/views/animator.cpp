// SPDX-License-Identifier: MIT
//
// A part remembers where a view was shown when the animation began and where it goes. What is
// shown is the view's own appearance with the animated properties put back to where they are on
// the way, part by part in the order they began. Parts keep their views; a group ends when its
// time is over or the first of its parts is cut short.
#include "desktop/uikit/views/animator.h"

#include <algorithm>
#include <utility>

#include "desktop/uikit/base/scheduler.h"

namespace desktop::uikit {
namespace {

double between(double from, double to, double progress) {
  return from + (to - from) * progress;
}
CGPoint between(CGPoint from, CGPoint to, double p) {
  return {between(from.x, to.x, p), between(from.y, to.y, p)};
}
CGRect between(CGRect from, CGRect to, double p) {
  return {
      between(from.origin, to.origin, p),
      {between(from.size.width, to.size.width, p), between(from.size.height, to.size.height, p)}};
}
CGAffineTransform between(const CGAffineTransform& from, const CGAffineTransform& to, double p) {
  return {between(from.a, to.a, p), between(from.b, to.b, p),   between(from.c, to.c, p),
          between(from.d, to.d, p), between(from.tx, to.tx, p), between(from.ty, to.ty, p)};
}
Color between(Color from, Color to, double p) {
  return {between(from.red, to.red, p), between(from.green, to.green, p),
          between(from.blue, to.blue, p), between(from.alpha, to.alpha, p)};
}

// Walks the properties of two appearances side by side.
template <typename Use>
void forEachProperty(Use use) {
  use(&ViewAppearance::bounds);
  use(&ViewAppearance::center);
  use(&ViewAppearance::transform);
  use(&ViewAppearance::alpha);
  use(&ViewAppearance::background);
}

// Whether both animations move the same property.
bool overlap(const ViewAppearance& from, const ViewAppearance& to, const ViewAppearance& otherFrom,
             const ViewAppearance& otherTo) {
  bool found = false;
  forEachProperty([&](auto property) {
    found |= from.*property != to.*property && otherFrom.*property != otherTo.*property;
  });
  return found;
}

}  // namespace

double progressAt(AnimationCurve curve, double fraction) {
  const double t = std::clamp(fraction, 0.0, 1.0);
  switch (curve) {
    case AnimationCurve::linear:
      return t;
    case AnimationCurve::easeIn:
      return t * t;
    case AnimationCurve::easeOut:
      return t * (2 - t);
    case AnimationCurve::easeInOut:
      break;
  }
  return t * t * (3 - 2 * t);
}

void Animator::animate(Seconds duration, Seconds delay, AnimationCurve curve,
                       const Animations& animations, Completion completion) {
  const auto group =
      std::make_shared<Group>(Group{scheduler().now() + std::max(delay, 0.0),
                                    std::max(duration, 0.0), curve, std::move(completion), false});
  const bool isShown = group->duration > 0 || delay > 0;
  _described.push_back(isShown ? group : nullptr);
  animations();
  _described.pop_back();
  const bool isRunning =
      std::ranges::any_of(_running, [&](const Part& part) { return part.group == group; });
  if (!isRunning)
    scheduler().callAfter(0, [group] {
      if (const Completion done = std::exchange(group->completion, nullptr)) done(true);
    });
}

void Animator::withoutAnimation(const Animations& changes) {
  _described.push_back(nullptr);
  changes();
  _described.pop_back();
}

void Animator::appearanceChanges(UIView view, const ViewAppearance& from,
                                 const ViewAppearance& to) {
  if (_described.empty() || !_described.back() || from == to) return;
  const std::shared_ptr<Group> group = _described.back();
  const auto mine = std::ranges::find_if(
      _running, [&](const Part& part) { return part.group == group && part.view.get() == view; });
  if (mine != _running.end()) {
    // Another property of the same view, or another value of the same one.
    forEachProperty([&](auto property) {
      if (from.*property == to.*property) return;
      if (mine->from.*property == mine->to.*property)
        mine->from.*property = shown(view, from).*property;
      mine->to.*property = to.*property;
    });
    return;
  }
  ViewAppearance start = from;
  const ViewAppearance seen = shown(view, from);
  forEachProperty([&](auto property) {
    if (from.*property != to.*property) start.*property = seen.*property;
  });
  std::vector<std::shared_ptr<Group>> replaced;
  for (const Part& part : _running)
    if (part.view.get() == view && overlap(part.from, part.to, start, to))
      replaced.push_back(part.group);
  for (const auto& old : replaced) cutShort(old);
  _running.push_back({Owned<UIView>::retain(view), start, to, group});
}

ViewAppearance Animator::shown(UIView view, const ViewAppearance& own) const {
  ViewAppearance seen = own;
  const Seconds now = scheduler().now();
  for (const Part& part : _running) {
    if (part.view.get() != view) continue;
    const Group& group = *part.group;
    const double p =
        progressAt(group.curve,
                   group.duration > 0 ? (now - group.start) / group.duration : now >= group.start);
    forEachProperty([&](auto property) {
      if (part.from.*property == part.to.*property) return;
      seen.*property = between(part.from.*property, part.to.*property, p);
    });
  }
  return seen;
}

bool Animator::isAnimating(UIView view) const {
  return std::ranges::any_of(_running, [&](const Part& part) { return part.view.get() == view; });
}

void Animator::stop(UIView view) {
  std::vector<std::shared_ptr<Group>> groups;
  for (const Part& part : _running)
    if (part.view.get() == view) groups.push_back(part.group);
  for (const auto& group : groups) cutShort(group);
}

void Animator::tick() {
  std::vector<std::shared_ptr<Group>> over;
  const Seconds now = scheduler().now();
  for (const Part& part : _running) {
    part.view.get().setNeedsDisplay();
    const bool isOver = now >= part.group->start + part.group->duration;
    if (isOver && std::ranges::find(over, part.group) == over.end()) over.push_back(part.group);
  }
  for (const auto& group : over) finish(group);
}

void Animator::finish(const std::shared_ptr<Group>& group) {
  std::vector<Part> ended;
  for (Part& part : _running)
    if (part.group == group) ended.push_back(part);
  std::erase_if(_running, [&](const Part& part) { return part.group == group; });
  for (const Part& part : ended) part.view.get().setNeedsDisplay();
  if (const Completion done = std::exchange(group->completion, nullptr)) done(!group->wasCut);
}

void Animator::cutShort(const std::shared_ptr<Group>& group) {
  group->wasCut = true;
  finish(group);
}

Animator& animator() {
  static auto& made = *new Animator;
  return made;
}

}  // namespace desktop::uikit
