// SPDX-License-Identifier: MIT
//
// One controller over another. A presentation belongs to the outermost controller around whoever
// asked for it; its transition counts as going on until the views stand still.
#include <algorithm>

#include "bridge/block.h"
#include "bridge/class_builder.h"
#include "desktop/uikit/base/platform_log.h"
#include "desktop/uikit/controllers/presentation.h"
#include "desktop/uikit/controllers/transition_view.h"
#include "desktop/uikit/controllers/ui_view_controller.h"
#include "desktop/uikit/overlays/ui_menu_controller.h"
#include "desktop/uikit/views/animator.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

using bridge::Block;
using bridge::Owned;

constexpr Seconds slideTime = 0.4;

bool coversAll(bridge::UIViewController controller) {
  constexpr NSInteger currentContext = 3;
  constexpr NSInteger overCurrentContext = 6;
  const auto style = bridge::send<NSInteger, "modalPresentationStyle">(controller);
  return style <= currentContext || style > overCurrentContext;
}

// Runs the change to the shown or hidden state, over time or at once.
void move(bridge::UIViewController controller, bool shown, bool animated,
          const std::function<void()>& finished) {
  const auto change = [controller, shown] {
    bridge::send<void, "_showPresented:">(controller, shown);
  };
  if (!animated) {
    change();
    return finished();
  }
  const auto duration = bridge::send<Seconds, "_presentationDuration">(controller);
  animator().animate(duration, 0, AnimationCurve::easeInOut, change,
                     [finished](bool) { finished(); });
}

}  // namespace

const char* UIViewController::refusal(bridge::UIViewController controller) const {
  if (!controller) return "which is none";
  const UIViewController& other = of(controller.get());
  if (other._presenting || other._parent || controller == root()) return "which is shown already";
  if (_presentation && (_presentation->isPresenting || _presentation->isDismissing))
    return "while a presentation is in progress";
  if (_presentation) return "which is already presenting";
  if (!_view || !UIView::of(_view.get()).window())
    return "whose view is not in the window hierarchy";
  return nullptr;
}

void UIViewController::present(bridge::UIViewController controller, bool animated,
                               const bridge::BlockHeader* completion) {
  const bridge::UIViewController me(self().get());
  if (root() != me) return of(root().get()).present(controller, animated, completion);
  if (const char* why = refusal(controller))
    return logLine("Attempt to present " + nameOf(controller) + " on " + nameOf(me) + " " + why);
  UIMenuController::shared().hide();
  const bridge::UIView window = UIView::of(_view.get()).window();
  const auto presentation = std::make_shared<Presentation>();
  presentation->presented = Owned<bridge::UIViewController>::retain(controller);
  presentation->container = makeTransitionView(window.bounds());
  presentation->coversAll = coversAll(controller);
  presentation->isPresenting = true;
  _presentation = presentation;
  UIViewController& other = of(controller.get());
  other._presenting = me;
  window.addSubview(presentation->container);
  const bridge::UIView view = other.view();
  if (presentation->coversAll) beginAppearance(false, animated);
  other.beginAppearance(true, animated);
  animator().withoutAnimation([&] {
    view.setFrame(presentation->container->bounds());
    view.setAutoresizingMask(bridge::flexibleWidth | bridge::flexibleHeight);
    presentation->container->addSubview(view);
    bridge::send<void, "layoutIfNeeded">(presentation->container.get());
    bridge::send<void, "_showPresented:">(controller, false);
  });
  const auto done = Block<void()>::retain(completion);
  move(controller, true, animated,
       [kept = Owned<bridge::UIViewController>::retain(me), presentation, done] {
         of(kept.get()).finishPresenting(presentation);
         done();
       });
}

void UIViewController::finishPresenting(const std::shared_ptr<Presentation>& presentation) {
  if (_presentation != presentation) return;
  presentation->isPresenting = false;
  if (presentation->coversAll) _view->removeFromSuperview();
  of(presentation->presented.get()).endAppearance();
  endAppearance();
}

void UIViewController::dismiss(bool animated, const bridge::BlockHeader* completion) {
  const auto done = Block<void()>::retain(completion);
  UIViewController& outermost = of(root().get());
  if (outermost._presentation) return outermost.dismissPresented(animated, done);
  if (outermost._presenting) of(outermost._presenting.get()).dismissPresented(animated, done);
}

// From the one that this controller presents to the topmost.
std::vector<Owned<bridge::UIViewController>> UIViewController::presentedChain() const {
  std::vector<Owned<bridge::UIViewController>> chain;
  for (const auto* at = &_presentation; *at; at = &of(chain.back().get())._presentation)
    chain.push_back((*at)->presented);
  return chain;
}

bool UIViewController::isInTransition() const {
  return _presentation && (_presentation->isPresenting || _presentation->isDismissing);
}

// Everything that is presented above this controller goes at once; the topmost is seen to go.
void UIViewController::dismissPresented(bool animated, const Block<void()>& completion) {
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
  UIMenuController::shared().hide();
  _presentation->isDismissing = true;
  if (wasCovered) putViewBack();
  for (auto each = chain.rbegin(); each != chain.rend(); ++each)
    of(each->get()).beginAppearance(false, animated);
  if (wasCovered) beginAppearance(true, animated);
  move(chain.back(), false, animated,
       [kept = Owned<bridge::UIViewController>::retain(bridge::UIViewController(self().get())),
        presentation = _presentation, completion] {
         of(kept.get()).finishDismissing(presentation);
         completion();
       });
}

void UIViewController::finishDismissing(const std::shared_ptr<Presentation>& presentation) {
  if (_presentation != presentation) return;
  const auto chain = presentedChain();
  endAppearance();
  for (auto each = chain.rbegin(); each != chain.rend(); ++each) of(each->get()).endAppearance();
  UIViewController* presenter = this;
  for (const auto& each : chain) {
    presenter->_presentation->container->removeFromSuperview();
    each->view().removeFromSuperview();
    presenter->_presentation.reset();
    presenter = &of(each.get());
    presenter->_presenting = {};
  }
}

// Behind everything else of what it stood in.
void UIViewController::putViewBack() {
  const bridge::UIView host = _presenting
                                  ? of(_presenting.get())._presentation->container.get()
                                  : UIView::of(_presentation->container.get().get()).superview();
  if (!host || UIView::of(_view.get()).superview()) return;
  _view->setFrame(host.bounds());
  UIView::of(host.get()).insertSubview(_view, 0);
}

bridge::UIViewController UIViewController::presented() const {
  return _presentation ? _presentation->presented.get() : bridge::UIViewController();
}

bridge::UIViewController UIViewController::presentedController() const {
  return of(root().get()).presented();
}

bridge::UIViewController UIViewController::presentingController() const {
  return of(root().get())._presenting;
}

bool UIViewController::isBeingPresented() const {
  return _presenting && of(_presenting.get())._presentation->isPresenting;
}

bool UIViewController::isBeingDismissed() const {
  return _presenting && of(_presenting.get())._presentation->isDismissing;
}

void UIViewController::showPresented(bool shown) {
  const CGRect whole = UIView::of(_view.get()).superview().bounds();
  _view->setFrame(shown ? whole : offset(whole, {0, whole.size.height}));
}

Seconds UIViewController::presentationDuration() const {
  return slideTime;
}

}  // namespace desktop::uikit
