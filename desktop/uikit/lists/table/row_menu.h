// SPDX-License-Identifier: MIT
//
// The edit menu that a table shows for one of its rows. It goes with the table.
#pragma once

#include <functional>

#include "bridge/geometry.h"
#include "bridge/runtime.h"
#include "desktop/platform.h"
#include "desktop/uikit/overlays/ui_menu_controller.h"

namespace desktop::uikit {

class RowMenu {
 public:
  RowMenu() = default;
  ~RowMenu() { hide(); }
  RowMenu(const RowMenu&) = delete;
  RowMenu& operator=(const RowMenu&) = delete;

  // The platform's edit commands of which the row knows what to do.
  static std::vector<MenuCommand> commands(const std::function<bool(SEL action)>& can,
                                           const std::function<void(SEL action)>& perform);
  // At a target in points of the screen. REQUIRES: there are commands.
  void show(std::vector<MenuCommand> commands, CGRect target);
  // Hides what it shows, and no other's menu.
  void hide();

 private:
  bool _isOnShow = false;
};

}  // namespace desktop::uikit
