// SPDX-License-Identifier: MIT
//
// A presentation begins with the presented view below the screen and ends, over time or at once,
// when that stands. Both controllers are told before and after. A fullscreen presenter's view is
// away meanwhile and comes back before the presented one goes. Everything above a controller goes
// together: only the topmost is seen to go.
#include "desktop/uikit/controllers/presentation.h"

#include <algorithm>
#include <functional>

#include "desktop/uikit/base/own_messages.h"
#include "desktop/uikit/base/platform_log.h"
#include "desktop/uikit/controllers/transition_view.h"
#include "desktop/uikit/overlays/ui_menu_controller.h"
#include "desktop/uikit/views/animator.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

bool isCoveringAll(UIViewController controller) {
  constexpr NSInteger currentContext = 3;
  constexpr NSInteger overCurrentContext = 6;
  const auto style = controller.modalPresentationStyle();
  return style <= currentContext || style > overCurrentContext;
}

// Runs the change to the shown or hidden state, over time or at once.
void move(UIViewController controller, bool shown, bool animated,
          const std::function<void()>& finished) {
  const auto change = [controller, shown] { showPresented(controller, shown); };
  if (!animated) {
    change();
    return finished();
  }
  animator().animate(presentationDuration(controller), 0, AnimationCurve::easeInOut, change,
                     [finished](bool) { finished(); });
}

}  // namespace

Presentation::~Presentation() {
  if (!_above) return;
  _above->presentation->_below = nullptr;
  _above->container->removeFromSuperview();
}

UIViewController Presentation::presented() const {
  return _above ? _above->controller.get() : UIViewController();
}

void Presentation::present(Presentation& other, bool animated, const Block<void()>& completion) {
  UIMenuControllerState::shared().hide();
  const UIView window = UIViewState::of(_owner.view().get()).window();
  const auto above =
      std::make_shared<Above>(Above{.presentation = &other,
                                    .controller = Owned<UIViewController>::retain(other._owner),
                                    .container = makeTransitionView(window.bounds()),
                                    .coversAll = isCoveringAll(other._owner)});
  _above = above;
  other._below = this;
  window.addSubview(above->container);
  other._owner.view();
  if (above->coversAll) _owner.beginAppearance(false, animated);
  other._owner.beginAppearance(true, animated);
  animator().withoutAnimation([&] { other.placeBelowScreen(); });
  move(other._owner, true, animated,
       [this, kept = Owned<UIViewController>::retain(_owner), above, completion] {
         finishPresenting(above);
         completion();
       });
}

void Presentation::placeBelowScreen() const {
  const UIView view = _owner.view();
  const UIView container = _below->_above->container;
  view.setFrame(container.bounds());
  view.setAutoresizingMask(flexibleWidth | flexibleHeight);
  container.addSubview(view);
  container.layoutIfNeeded();
  showPresented(_owner, false);
}

void Presentation::finishPresenting(const std::shared_ptr<Above>& above) {
  if (_above != above) return;
  above->isComing = false;
  if (above->coversAll) _owner.view().removeFromSuperview();
  above->controller->endAppearance();
  _owner.endAppearance();
}

void Presentation::dismiss(bool animated, const Block<void()>& completion) {
  if (_above) return dismissAbove(animated, completion);
  if (_below) _below->dismissAbove(animated, completion);
}

// From the one directly above to the topmost.
std::vector<Presentation*> Presentation::allAbove() const {
  std::vector<Presentation*> all;
  for (const Presentation* at = this; at->_above; at = all.back())
    all.push_back(at->_above->presentation);
  return all;
}

void Presentation::dismissAbove(bool animated, const Block<void()>& completion) {
  const auto all = allAbove();
  const bool isBusy = isInTransition() || std::ranges::any_of(all, &Presentation::isInTransition);
  if (isBusy)
    return logLine("Attempt to dismiss from " + nameOf(_owner) +
                   " while a presentation or dismissal is in progress");
  const bool wasCovered =
      _above->coversAll || std::ranges::any_of(all, [](const Presentation* each) {
        return each->_above && each->_above->coversAll;
      });
  UIMenuControllerState::shared().hide();
  _above->isGoing = true;
  if (wasCovered) putViewBack();
  for (auto each = all.rbegin(); each != all.rend(); ++each)
    (*each)->_owner.beginAppearance(false, animated);
  if (wasCovered) _owner.beginAppearance(true, animated);
  move(all.back()->_owner, false, animated,
       [this, kept = Owned<UIViewController>::retain(_owner), above = _above, completion] {
         finishDismissing(above);
         completion();
       });
}

void Presentation::finishDismissing(const std::shared_ptr<Above>& above) {
  if (_above != above) return;
  ObjectList<UIViewController> gone;
  for (const Presentation* each : allAbove())
    gone.push_back(Owned<UIViewController>::retain(each->_owner));
  _owner.endAppearance();
  for (auto each = gone.rbegin(); each != gone.rend(); ++each) each->get().endAppearance();
  Presentation* presenter = this;
  for (const auto& each : gone) {
    Presentation* const presented = presenter->_above->presentation;
    presenter->_above->container->removeFromSuperview();
    each->view().removeFromSuperview();
    presenter->_above.reset();
    presented->_below = nullptr;
    presenter = presented;
  }
}

// Behind everything else of what it stood in.
void Presentation::putViewBack() const {
  const UIView view = _owner.view();
  const UIView host = _below ? _below->_above->container.get()
                             : UIViewState::of(_above->container.get().get()).superview();
  if (!host || UIViewState::of(view.get()).superview()) return;
  view.setFrame(host.bounds());
  UIViewState::of(host.get()).insertSubview(view, 0);
}

}  // namespace desktop::uikit
