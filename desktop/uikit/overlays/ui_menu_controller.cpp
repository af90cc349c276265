// SPDX-License-Identifier: MIT
#include "desktop/uikit/overlays/ui_menu_controller.h"

#include "bridge/class_builder.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/views/ui_responder.h"

namespace desktop::uikit {
namespace {

struct StandardCommand {
  const char* selector;
  const char* title;
};

// In the platform's order.
constexpr StandardCommand standardCommands[] = {
    {"cut:", "Cut"},     {"copy:", "Copy"}, {"select:", "Select"}, {"selectAll:", "Select All"},
    {"paste:", "Paste"},
};

// Who takes a command: the first responder, or the first behind it that can.
bridge::UIResponder takerOf(SEL action) {
  bridge::UIResponder taker = UIResponder::firstResponder();
  const auto sender = UIMenuController::sharedMenuController();
  while (taker && !bridge::send<bool, "canPerformAction:withSender:">(taker, action, sender))
    taker = bridge::send<bridge::UIResponder, "nextResponder">(taker);
  return taker;
}

std::vector<MenuCommand> possibleCommands() {
  std::vector<MenuCommand> possible;
  for (const StandardCommand& command : standardCommands) {
    const SEL action = sel_registerName(command.selector);
    if (!takerOf(action)) continue;
    possible.push_back({command.title, [action] {
                          if (const auto taker = takerOf(action))
                            bridge::dispatch<void>(taker.get(), action,
                                                   UIMenuController::sharedMenuController().get());
                        }});
  }
  return possible;
}

}  // namespace

Class UIMenuController::classObject() {
  static const Class made =
      bridge::ClassBuilder<UIMenuController>("UIMenuController")
          .classMethod<"sharedMenuController", &UIMenuController::sharedMenuController>()
          .method<"menuFrame", &UIMenuController::menuFrame>()
          .method<"isMenuVisible", &UIMenuController::isVisible>()
          .method<"setTargetRect:inView:", &UIMenuController::setTargetRect>()
          .method<"setMenuVisible:", &UIMenuController::setMenuVisibleAtOnce>()
          .method<"setMenuVisible:animated:", &UIMenuController::setMenuVisible>()
          .build();
  return made;
}

bridge::UIMenuController UIMenuController::sharedMenuController() {
  static const bridge::UIMenuController menu = bridge::makeNew<bridge::UIMenuController>().detach();
  return menu;
}

UIMenuController& UIMenuController::shared() {
  return of(sharedMenuController().get());
}

void UIMenuController::show(std::vector<MenuCommand> commands, CGRect targetOnScreen,
                            std::function<void()> hidden) {
  hide();
  const bridge::UIView window = bridge::UIApplication::sharedApplication().keyWindow();
  if (commands.empty() || !window) return;
  if (!isFinite(targetOnScreen)) targetOnScreen = {};
  const CGRect target =
      bridge::send<CGRect, "convertRect:fromView:">(window, targetOnScreen, bridge::UIView());
  _overlay = MenuOverlay::show(window, std::move(commands), target,
                               {[this] { _overlay = {}; }, std::move(hidden)});
  _menuFrame = bridge::send<CGRect, "convertRect:toView:">(
      window, MenuOverlay::of(_overlay.get()).bubbleFrame(), bridge::UIView());
}

void UIMenuController::hide() {
  if (_overlay) MenuOverlay::of(_overlay.get()).hide();
}

std::vector<std::string> UIMenuController::titles() const {
  std::vector<std::string> titles;
  if (!_overlay) return titles;
  for (const MenuCommand& command : MenuOverlay::of(_overlay.get()).commands())
    titles.push_back(command.title);
  return titles;
}

void UIMenuController::run(std::size_t index) {
  if (_overlay) MenuOverlay::of(_overlay.get()).run(index);
}

void UIMenuController::setTargetRect(CGRect rect, bridge::UIView view) {
  _target = bridge::send<CGRect, "convertRect:toView:">(view, rect, bridge::UIView());
}

void UIMenuController::setMenuVisible(bool visible, bool) {
  if (!visible) return hide();
  if (!isVisible()) show(possibleCommands(), _target);
}

}  // namespace desktop::uikit
