// SPDX-License-Identifier: MIT
//
// Animations of views: what a view is moves at once, what is shown of it follows in time.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "bridge/uikit/ui_view.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/scheduler.h"
#include "desktop/uikit/views/view_appearance.h"

namespace desktop::uikit {

enum class AnimationCurve { easeInOut, easeIn, easeOut, linear };

// How far an animation is along its curve, both as fractions.
double progressAt(AnimationCurve curve, double fraction);

class Animator {
 public:
  // Called once: true where the animation came to its end, false where it was cut short.
  using Completion = std::function<void(bool)>;
  using Animations = std::function<void()>;

  // Runs the animations; what they change of views is then shown over the duration. A later
  // animation of the same view takes over the properties that it changes, and cuts this one short.
  void animate(Seconds duration, Seconds delay, AnimationCurve curve, const Animations& animations,
               Completion completion);
  // Runs changes that are shown at once, whatever animation they are part of.
  void withoutAnimation(const Animations& changes);

  // A view tells what it was and is, before it shows it: part of the animation being described,
  // or nothing where there is none.
  void appearanceChanges(UIView view, const ViewAppearance& from, const ViewAppearance& to);
  // What is shown of a view whose own appearance this is.
  ViewAppearance shown(UIView view, const ViewAppearance& own) const;
  bool isAnimating(UIView view) const;
  bool isIdle() const { return _running.empty(); }

  // Cuts short what runs on a view.
  void stop(UIView view);
  // Shows the state at the present moment and completes what is over.
  void tick();

 private:
  struct Group {
    Seconds start = 0;
    Seconds duration = 0;
    AnimationCurve curve = AnimationCurve::easeInOut;
    Completion completion;
    bool wasCut = false;
  };
  // One view's part in a group; a property takes part where from and to differ.
  struct Part {
    Owned<UIView> view;
    ViewAppearance from;
    ViewAppearance to;
    std::shared_ptr<Group> group;
  };

  void finish(const std::shared_ptr<Group>& group);
  void cutShort(const std::shared_ptr<Group>& group);

  std::vector<std::shared_ptr<Group>> _described;  // the innermost last; null: without animation
  std::vector<Part> _running;
};

// The animations of this process.
Animator& animator();

}  // namespace desktop::uikit
