// SPDX-License-Identifier: MIT
#include "desktop/uikit/views/view_animations.h"

#include "desktop/uikit/views/animator.h"

namespace desktop::uikit {
namespace {

// The curve stands in bits 16 and 17.
AnimationCurve curveOf(NSUInteger options) {
  constexpr AnimationCurve curves[] = {AnimationCurve::easeInOut, AnimationCurve::easeIn,
                                       AnimationCurve::easeOut, AnimationCurve::linear};
  return curves[(options >> 16) & 3];
}

}  // namespace

void animateWithOptions(double duration, double delay, NSUInteger options,
                        const BlockHeader* changes, const BlockHeader* completion) {
  const auto work = Block<void()>::retain(changes);
  const auto done = Block<void(bool)>::retain(completion);
  animator().animate(
      duration, delay, curveOf(options), [&] { work(); },
      [done](bool finished) { done(finished); });
}

void animateToCompletion(double duration, const BlockHeader* changes,
                         const BlockHeader* completion) {
  animateWithOptions(duration, 0, 0, changes, completion);
}

void animateChanges(double duration, const BlockHeader* changes) {
  animateToCompletion(duration, changes, nullptr);
}

void performWithoutAnimation(const BlockHeader* changes) {
  const auto work = Block<void()>::retain(changes);
  animator().withoutAnimation([&] { work(); });
}

}  // namespace desktop::uikit
