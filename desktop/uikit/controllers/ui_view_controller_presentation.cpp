// SPDX-License-Identifier: MIT
//
// One controller over another. A presentation belongs to the outermost controller around whoever
// asked for it; its transition counts as going on until the views stand still.
#include <algorithm>

#include "bridge/block.h"
#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/own_messages.h"
#include "desktop/uikit/base/platform_log.h"
#include "desktop/uikit/controllers/presentation.h"
#include "desktop/uikit/controllers/transition_view.h"
#include "desktop/uikit/controllers/ui_view_controller.h"
#include "desktop/uikit/overlays/ui_menu_controller.h"
#include "desktop/uikit/views/animator.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

constexpr Seconds slideTime = 0.4;

bool coversAll(UIViewController controller) {
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
  const auto duration = presentationDuration(controller);
  animator().animate(duration, 0, AnimationCurve::easeInOut, change,
                     [finished](bool) { finished(); });
}

}  // namespace

const char* UIViewControllerState::refusal(UIViewController controller) const {
  if (!controller) return "which is none";
  const UIViewControllerState& other = of(controller.get());
  if (other._presenting || other._parent || controller == root()) return "which is shown already";
  if (_presentation && (_presentation->isPresenting || _presentation->isDismissing))
    return "while a presentation is in progress";
  if (_presentation) return "which is already presenting";
  if (!_view || !UIViewState::of(_view.get()).window())
    return "whose view is not in the window hierarchy";
  return nullptr;
}

void UIViewControllerState::present(UIViewController controller, bool animated,
                                    const BlockHeader* completion) {
  const UIViewController me(self().get());
  if (root() != me) return of(root().get()).present(controller, animated, completion);
  if (const char* why = refusal(controller))
    return logLine("Attempt to present " + nameOf(controller) + " on " + nameOf(me) + " " + why);
  UIMenuControllerState::shared().hide();
  const UIView window = UIViewState::of(_view.get()).window();
  const auto presentation = std::make_shared<Presentation>();
  presentation->presented = Owned<UIViewController>::retain(controller);
  presentation->container = makeTransitionView(window.bounds());
  presentation->coversAll = coversAll(controller);
  presentation->isPresenting = true;
  _presentation = presentation;
  UIViewControllerState& other = of(controller.get());
  other._presenting = me;
  window.addSubview(presentation->container);
  const UIView view = other.view();
  if (presentation->coversAll) beginAppearance(false, animated);
  other.beginAppearance(true, animated);
  animator().withoutAnimation([&] {
    view.setFrame(presentation->container->bounds());
    view.setAutoresizingMask(flexibleWidth | flexibleHeight);
    presentation->container->addSubview(view);
    presentation->container.get().layoutIfNeeded();
    uikit::showPresented(controller, false);
  });
  const auto done = Block<void()>::retain(completion);
  move(controller, true, animated,
       [kept = Owned<UIViewController>::retain(me), presentation, done] {
         of(kept.get()).finishPresenting(presentation);
         done();
       });
}

void UIViewControllerState::finishPresenting(const std::shared_ptr<Presentation>& presentation) {
  if (_presentation != presentation) return;
  presentation->isPresenting = false;
  if (presentation->coversAll) _view->removeFromSuperview();
  of(presentation->presented.get()).endAppearance();
  endAppearance();
}

void UIViewControllerState::dismiss(bool animated, const BlockHeader* completion) {
  const auto done = Block<void()>::retain(completion);
  UIViewControllerState& outermost = of(root().get());
  if (outermost._presentation) return outermost.dismissPresented(animated, done);
  if (outermost._presenting) of(outermost._presenting.get()).dismissPresented(animated, done);
}

// From the one that this controller presents to the topmost.
std::vector<Owned<UIViewController>> UIViewControllerState::presentedChain() const {
  std::vector<Owned<UIViewController>> chain;
  for (const auto* at = &_presentation; *at; at = &of(chain.back().get())._presentation)
    chain.push_back((*at)->presented);
  return chain;
}

bool UIViewControllerState::isInTransition() const {
  return _presentation && (_presentation->isPresenting || _presentation->isDismissing);
}

// Everything that is presented above this controller goes at once; the topmost is seen to go.
void UIViewControllerState::dismissPresented(bool animated, const Block<void()>& completion) {
  const auto chain = presentedChain();
  bool isBusy = isInTransition();
  bool wasCovered = _presentation->coversAll;
  for (const auto& each : chain) {
    isBusy |= of(each.get()).isInTransition();
    wasCovered |= of(each.get())._presentation && of(each.get())._presentation->coversAll;
  }
  if (isBusy)
    return logLine("Attempt to dismiss from " + nameOf(self()) +
                   " while a presentation or dismissal is in progress");
  UIMenuControllerState::shared().hide();
  _presentation->isDismissing = true;
  if (wasCovered) putViewBack();
  for (auto each = chain.rbegin(); each != chain.rend(); ++each)
    of(each->get()).beginAppearance(false, animated);
  if (wasCovered) beginAppearance(true, animated);
  move(chain.back(), false, animated,
       [kept = Owned<UIViewController>::retain(UIViewController(self().get())),
        presentation = _presentation, completion] {
         of(kept.get()).finishDismissing(presentation);
         completion();
       });
}

void UIViewControllerState::finishDismissing(const std::shared_ptr<Presentation>& presentation) {
  if (_presentation != presentation) return;
  const auto chain = presentedChain();
  endAppearance();
  for (auto each = chain.rbegin(); each != chain.rend(); ++each) of(each->get()).endAppearance();
  UIViewControllerState* presenter = this;
  for (const auto& each : chain) {
    presenter->_presentation->container->removeFromSuperview();
    each->view().removeFromSuperview();
    presenter->_presentation.reset();
    presenter = &of(each.get());
    presenter->_presenting = {};
  }
}

// Behind everything else of what it stood in.
void UIViewControllerState::putViewBack() {
  const UIView host = _presenting
                          ? of(_presenting.get())._presentation->container.get()
                          : UIViewState::of(_presentation->container.get().get()).superview();
  if (!host || UIViewState::of(_view.get()).superview()) return;
  _view->setFrame(host.bounds());
  UIViewState::of(host.get()).insertSubview(_view, 0);
}

UIViewController UIViewControllerState::presented() const {
  return _presentation ? _presentation->presented.get() : UIViewController();
}

UIViewController UIViewControllerState::presentedController() const {
  return of(root().get()).presented();
}

UIViewController UIViewControllerState::presentingController() const {
  return of(root().get())._presenting;
}

bool UIViewControllerState::isBeingPresented() const {
  return _presenting && of(_presenting.get())._presentation->isPresenting;
}

bool UIViewControllerState::isBeingDismissed() const {
  return _presenting && of(_presenting.get())._presentation->isDismissing;
}

void UIViewControllerState::showPresented(bool shown) {
  const CGRect whole = UIViewState::of(_view.get()).superview().bounds();
  _view->setFrame(shown ? whole : offset(whole, {0, whole.size.height}));
}

Seconds UIViewControllerState::presentationDuration() const {
  return slideTime;
}

}  // namespace desktop::uikit
