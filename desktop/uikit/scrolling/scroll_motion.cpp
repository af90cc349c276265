// SPDX-License-Identifier: MIT
#include "desktop/uikit/scrolling/scroll_motion.h"

#include <algorithm>
#include <cmath>

#include "desktop/uikit/views/animator.h"

namespace desktop::uikit {
namespace {

const double friction = -1000 * std::log(0.998);  // a second
constexpr double springRate = 14;                 // a second
constexpr double standstill = 10;                 // points a second
constexpr double unseen = 0.25;                   // points
constexpr double highestVelocity = 20'000;        // points a second
constexpr Seconds frame = 1.0 / 60;
constexpr Seconds longestSpring = 5;

double coasted(double from, double velocity, Seconds time) {
  return from + velocity / friction * (1 - std::exp(-friction * time));
}

double sprung(double away, double velocity, Seconds time) {
  return (away + (velocity + springRate * away) * time) * std::exp(-springRate * time);
}

}  // namespace

void ScrollMotion::spring(double from, double velocity) {
  _springFrom = from;
  _springVelocity = velocity;
  const double away = std::abs(from - _end);
  if (away == 0 && velocity == 0) return;
  const double most = std::abs(velocity) + springRate * away;
  Seconds time = 1 / springRate;
  while (time < longestSpring && sprung(away, most, time) > unseen) time += frame;
  _springDuration = time;
}

ScrollMotion ScrollMotion::springing(double from, double velocity, double to) {
  ScrollMotion motion;
  motion._from = from;
  motion._end = to;
  motion.spring(from, std::clamp(velocity, -highestVelocity, highestVelocity));
  return motion;
}

ScrollMotion ScrollMotion::easing(double from, double to, Seconds duration) {
  ScrollMotion motion;
  motion._from = from;
  motion._end = to;
  motion._isEasing = true;
  motion._springDuration = std::max(duration, 0.0);
  return motion;
}

ScrollMotion ScrollMotion::coasting(double from, double velocity, Limits limits, bool bounces) {
  velocity = std::clamp(velocity, -highestVelocity, highestVelocity);
  const double nearest = std::clamp(from, limits.least, limits.most);
  if (nearest != from) return springing(from, velocity, nearest);
  if (!(std::abs(velocity) > standstill)) return standing(from);
  ScrollMotion motion;
  motion._from = from;
  motion._velocity = velocity;
  motion._springTime = std::log(std::abs(velocity) / standstill) / friction;
  motion._end = coasted(from, velocity, motion._springTime);
  const double limit = std::clamp(motion._end, limits.least, limits.most);
  if (limit == motion._end) return motion;
  const double speedLeft = 1 - friction * (limit - from) / velocity;
  motion._springTime = -std::log(speedLeft) / friction;
  motion._end = limit;
  if (bounces) motion.spring(limit, velocity * speedLeft);
  return motion;
}

double ScrollMotion::at(Seconds time) const {
  if (!(time < duration())) return _end;
  if (_isEasing) {
    const double progress = progressAt(AnimationCurve::easeInOut, time / duration());
    return _from + (_end - _from) * progress;
  }
  if (time < _springTime) return coasted(_from, _velocity, time);
  return _end + sprung(_springFrom - _end, _springVelocity, time - _springTime);
}

double rubberBand(double beyond, double room) {
  constexpr double stiffness = 0.55;
  if (!(room > 0)) return 0;
  const double pull = (1 - 1 / (std::abs(beyond) * stiffness / room + 1)) * room;
  return beyond < 0 ? -pull : pull;
}

}  // namespace desktop::uikit
