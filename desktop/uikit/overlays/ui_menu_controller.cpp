// SPDX-License-Identifier: MIT
#include "desktop/uikit/overlays/ui_menu_controller.h"

#include "bridge/class_builder.h"
#include "desktop/platform.h"
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
UIResponder takerOf(SEL action) {
  UIResponder taker = UIResponderState::firstResponder();
  const auto sender = UIMenuControllerState::sharedMenuController();
  while (taker && !taker.canPerform(action, sender)) taker = taker.nextResponder();
  return taker;
}

std::vector<MenuCommand> possibleCommands() {
  std::vector<MenuCommand> possible;
  for (const StandardCommand& command : standardCommands) {
    const SEL action = sel_registerName(command.selector);
    if (!takerOf(action)) continue;
    possible.push_back({command.title, [action] {
                          if (const auto taker = takerOf(action))
                            dispatch<void>(taker.get(), action,
                                           UIMenuControllerState::sharedMenuController().get());
                        }});
  }
  return possible;
}

}  // namespace

Class UIMenuControllerState::classObject() {
  static const Class made =
      ClassBuilder<UIMenuControllerState>("UIMenuController")
          .classMethod<"sharedMenuController", &UIMenuControllerState::sharedMenuController>()
          .method<"menuFrame", &UIMenuControllerState::menuFrame>()
          .method<"isMenuVisible", &UIMenuControllerState::isVisible>()
          .method<"setTargetRect:inView:", &UIMenuControllerState::setTargetRect>()
          .method<"setMenuVisible:", &UIMenuControllerState::setMenuVisibleAtOnce>()
          .method<"setMenuVisible:animated:", &UIMenuControllerState::setMenuVisible>()
          .build();
  return made;
}

UIMenuController UIMenuControllerState::sharedMenuController() {
  static const UIMenuController menu = makeNew<UIMenuController>().detach();
  return menu;
}

UIMenuControllerState& UIMenuControllerState::shared() {
  return of(sharedMenuController().get());
}

void UIMenuControllerState::show(std::vector<MenuCommand> commands, CGRect targetOnScreen,
                                 std::function<void()> hidden) {
  hide();
  const UIView window = UIApplication::sharedApplication().keyWindow();
  if (commands.empty() || !window) return;
  if (!isFinite(targetOnScreen)) targetOnScreen = {};
  const CGRect target = window.convertFrom(targetOnScreen, UIView());
  _overlay = MenuOverlay::show(window, std::move(commands), target,
                               {[this] { _overlay = {}; }, std::move(hidden)});
  _menuFrame = window.convertTo(MenuOverlay::of(_overlay.get()).bubbleFrame(), UIView());
}

void UIMenuControllerState::hide() {
  if (_overlay) MenuOverlay::of(_overlay.get()).hide();
}

std::vector<std::string> UIMenuControllerState::titles() const {
  std::vector<std::string> titles;
  if (!_overlay) return titles;
  for (const MenuCommand& command : MenuOverlay::of(_overlay.get()).commands())
    titles.push_back(command.title);
  return titles;
}

void UIMenuControllerState::run(std::size_t index) {
  if (_overlay) MenuOverlay::of(_overlay.get()).run(index);
}

void UIMenuControllerState::setTargetRect(CGRect rect, UIView view) {
  _target = view.convertTo(rect, UIView());
}

// Animated or not, the menu is there, or gone, at once.
void UIMenuControllerState::setMenuVisible(bool visible, bool) {
  if (!visible) return hide();
  if (!isVisible()) show(possibleCommands(), _target);
}

}  // namespace desktop::uikit
