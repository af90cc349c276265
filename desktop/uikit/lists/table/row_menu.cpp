// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/table/row_menu.h"

#include <utility>

namespace desktop::uikit {
namespace {

struct EditCommand {
  const char* title;
  const char* selector;
};
constexpr EditCommand editCommands[] = {{"Cut", "cut:"}, {"Copy", "copy:"}, {"Paste", "paste:"}};

}  // namespace

std::vector<MenuCommand> RowMenu::commands(const std::function<bool(SEL)>& can,
                                           const std::function<void(SEL)>& perform) {
  std::vector<MenuCommand> commands;
  for (const EditCommand& command : editCommands) {
    const SEL action = sel_registerName(command.selector);
    if (can(action)) commands.push_back({command.title, [perform, action] { perform(action); }});
  }
  return commands;
}

void RowMenu::show(std::vector<MenuCommand> commands, CGRect target) {
  UIMenuControllerState& menu = UIMenuControllerState::shared();
  menu.show(std::move(commands), target, [this] { _isOnShow = false; });
  _isOnShow = menu.isVisible();
}

void RowMenu::hide() {
  if (_isOnShow) UIMenuControllerState::shared().hide();
}

}  // namespace desktop::uikit
