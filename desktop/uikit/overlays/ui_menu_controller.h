// SPDX-License-Identifier: MIT
//
// UIMenuController: the edit menu, a row of commands in a bubble that points at what they are for.
// There is one of it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/platform.h"
#include "desktop/uikit/overlays/menu_overlay.h"

namespace desktop::uikit {

class UIMenuControllerState : public Bound<UIMenuControllerState, NSObject, UIMenuController> {
 public:
  using Bound::Bound;
  static Class classObject();

  static UIMenuController sharedMenuController();
  static UIMenuControllerState& shared();

  // Shows the commands at a target, in points of the screen, in place of what was shown so far.
  // Pressing a command hides the menu and runs it; a touch elsewhere only hides it. `hidden` is
  // called once this menu has begun to hide, for whatever reason, before a command runs. Without
  // commands nothing is shown.
  void show(std::vector<MenuCommand> commands, CGRect targetOnScreen,
            std::function<void()> hidden = {});
  void hide();

  bool isVisible() const { return static_cast<bool>(_overlay); }
  // Of the commands on show, from left to right; empty where the menu is hidden.
  std::vector<std::string> titles() const;
  // Does what pressing the command of this place does; nothing beyond the last.
  void run(std::size_t index);
  // The bubble with its arrow, in points of the screen; the last one's where the menu is hidden.
  CGRect menuFrame() const { return _menuFrame; }

 private:
  void setTargetRect(CGRect rect, UIView view);
  // Shows what the first responder can do of the platform's standard edit commands.
  void setMenuVisible(bool visible, bool animated);
  void setMenuVisibleAtOnce(bool visible) { setMenuVisible(visible, false); }

  CGRect _target;  // in points of the screen
  CGRect _menuFrame;
  UIView _overlay;  // what is on show; borrowed from its window
};

}  // namespace desktop::uikit
