// SPDX-License-Identifier: MIT
//
// The class methods of UIView that animate: blocks in, the animator does the work.
#include "bridge/block.h"
#include "desktop/platform.h"
#include "desktop/uikit/views/animator.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

// The platform's option bits that are honoured: the curve, in bits 16 and 17.
AnimationCurve curveOf(NSUInteger options) {
  constexpr AnimationCurve curves[] = {AnimationCurve::easeInOut, AnimationCurve::easeIn,
                                       AnimationCurve::easeOut, AnimationCurve::linear};
  return curves[(options >> 16) & 3];
}

void animate(Seconds duration, Seconds delay, NSUInteger options, const BlockHeader* animations,
             const BlockHeader* completion) {
  const auto changes = Block<void()>::retain(animations);
  const auto done = Block<void(bool)>::retain(completion);
  animator().animate(
      duration, delay, curveOf(options), [&] { changes(); },
      [done](bool finished) { done(finished); });
}

void UIView_animate(id, SEL, double duration, const BlockHeader* animations) {
  animate(duration, 0, 0, animations, nullptr);
}

void UIView_animateCompletion(id, SEL, double duration, const BlockHeader* animations,
                              const BlockHeader* completion) {
  animate(duration, 0, 0, animations, completion);
}

void UIView_animateOptions(id, SEL, double duration, double delay, NSUInteger options,
                           const BlockHeader* animations, const BlockHeader* completion) {
  animate(duration, delay, options, animations, completion);
}

void UIView_performWithoutAnimation(id, SEL, const BlockHeader* changes) {
  const auto work = Block<void()>::retain(changes);
  animator().withoutAnimation([&] { work(); });
}

template <typename Function>
struct Row;
template <typename R, typename... Arguments>
struct Row<R (*)(id, SEL, Arguments...)> {
  static void add(const char* selector, R (*function)(id, SEL, Arguments...)) {
    class_addMethod(object_getClass(rawObject(UIViewState::classObject())),
                    sel_registerName(selector), reinterpret_cast<IMP>(function),
                    encodingOf<R(id, SEL, Arguments...)>.data());
  }
};

}  // namespace

void addViewAnimations() {
  Row<decltype(&UIView_animate)>::add("animateWithDuration:animations:", &UIView_animate);
  Row<decltype(&UIView_animateCompletion)>::add("animateWithDuration:animations:completion:",
                                                &UIView_animateCompletion);
  Row<decltype(&UIView_animateOptions)>::add(
      "animateWithDuration:delay:options:animations:completion:", &UIView_animateOptions);
  Row<decltype(&UIView_performWithoutAnimation)>::add("performWithoutAnimation:",
                                                      &UIView_performWithoutAnimation);
}

}  // namespace desktop::uikit
