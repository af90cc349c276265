// SPDX-License-Identifier: MIT
#include "tests/desktop/uikit/controller_probes.h"

#include "bridge/class_builder.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/touch/touch_dispatcher.h"
#include "desktop/uikit/views/ui_label.h"

namespace desktop::uikit {
namespace {

UIView find(UIView view, std::string_view text) {
  const UIViewState& state = UIViewState::of(view.get());
  if (state.isHidden() || !(state.alpha() > 0)) return {};
  for (auto child = state.subviews().rbegin(); child != state.subviews().rend(); ++child)
    if (const auto found = find(child->get(), text)) return found;
  const bool isLabel = isKindOf(view, UILabelState::classObject());
  return isLabel && UILabel(view.get()).text().utf8() == text ? view : UIView();
}

}  // namespace

std::vector<std::string> ProbeController::calls;

Class ProbeController::classObject() {
  static const Class made = ClassBuilder<ProbeController>("ProbeController")
                                .method<"viewDidLoad", &ProbeController::viewDidLoad>()
                                .method<"viewWillAppear:", &ProbeController::viewWillAppear>()
                                .method<"viewDidAppear:", &ProbeController::viewDidAppear>()
                                .method<"viewWillDisappear:", &ProbeController::viewWillDisappear>()
                                .method<"viewDidDisappear:", &ProbeController::viewDidDisappear>()
                                .method<"viewWillTransitionToSize:withTransitionCoordinator:",
                                        &ProbeController::willBecome>()
                                .method<"press:", &ProbeController::press>()
                                .build();
  return made;
}

Owned<UIViewController> ProbeController::make(std::string name) {
  auto made = Owned<UIViewController>::adopt(
      send<UIViewController, "init">(send<id, "alloc">(classObject())));
  of(made.get())._name = name;
  send<void, "setTitle:">(made.get(), NSString::make(name));
  return made;
}

void ProbeController::viewDidLoad() {
  super<void, "viewDidLoad">();
  self().view().setBackgroundColor(UIColor::whiteColor());
  note("didLoad");
}

void ProbeController::viewWillAppear(bool animated) {
  super<void, "viewWillAppear:">(animated);
  note("willAppear");
}

void ProbeController::viewDidAppear(bool animated) {
  super<void, "viewDidAppear:">(animated);
  note("didAppear");
}

void ProbeController::viewWillDisappear(bool animated) {
  super<void, "viewWillDisappear:">(animated);
  note("willDisappear");
  if (onDisappear) onDisappear();
}

void ProbeController::viewDidDisappear(bool animated) {
  super<void, "viewDidDisappear:">(animated);
  note("didDisappear");
}

void ProbeController::willBecome(CGSize size, Object coordinator) {
  super<void, "viewWillTransitionToSize:withTransitionCoordinator:">(size, coordinator);
  note((std::to_string(static_cast<int>(size.width)) + " x " +
        std::to_string(static_cast<int>(size.height)))
           .c_str());
}

void ProbeController::press(Object from) {
  sender = from;
  note("pressed");
  if (onPress) onPress();
}

Owned<UIViewController> ControllerTest::showRoot(const Owned<UIViewController>& root) {
  window().setRootViewController(root);
  wait(0.1);
  takeCalls();
  return root;
}

void ControllerTest::tap(CGPoint point) {
  touches().down(point);
  wait(0.05);
  touches().up(point);
  wait(0.02);
}

void ControllerTest::tap(UIView view) {
  ASSERT_TRUE(view);
  tap(middle(apply(UIViewState::of(view.get()).toScreen(), view.bounds())));
}

UIView ControllerTest::viewWithText(std::string_view text) {
  application().prepareFrame();
  for (auto each = application().windows.rbegin(); each != application().windows.rend(); ++each)
    if (const auto found = find(each->get(), text)) return found;
  return {};
}

void ControllerTest::tap(std::string_view text) {
  const auto view = viewWithText(text);
  ASSERT_TRUE(view) << text;
  tap(view);
}

std::vector<double> numbers(CGRect rect) {
  return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

std::vector<double> onScreen(UIView view) {
  return numbers(apply(UIViewState::of(view.get()).toScreen(), view.bounds()));
}

}  // namespace desktop::uikit
