// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/table/row_menu.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

#include "tests/desktop/uikit/application_test.h"

namespace desktop::uikit {
namespace {

using testing::ElementsAre;

class RowMenuTest : public ApplicationTest {
 protected:
  std::vector<MenuCommand> commands(const std::string& allowed) {
    return RowMenu::commands(
        [=](SEL action) { return allowed.find(sel_getName(action)) != std::string::npos; },
        [this](SEL action) { performed.emplace_back(sel_getName(action)); });
  }
  static UIMenuControllerState& menu() { return UIMenuControllerState::shared(); }

  std::vector<std::string> performed;
};

TEST_F(RowMenuTest, HasTheCommandsThatAreAllowed) {
  RowMenu rowMenu;
  rowMenu.show(commands("copy: paste:"), {{10, 100}, {300, 44}});
  EXPECT_THAT(menu().titles(), ElementsAre("Copy", "Paste"));
  menu().run(1);
  EXPECT_THAT(performed, ElementsAre("paste:"));
  EXPECT_TRUE(commands("").empty());
}

TEST_F(RowMenuTest, TakesItsMenuAlong) {
  std::optional<RowMenu> rowMenu(std::in_place);
  rowMenu->show(commands("copy:"), {{10, 100}, {300, 44}});
  EXPECT_TRUE(menu().isVisible());
  rowMenu.reset();
  EXPECT_FALSE(menu().isVisible());
}

TEST_F(RowMenuTest, LeavesTheMenuOfAnotherAlone) {
  RowMenu first;
  RowMenu second;
  first.show(commands("copy:"), {{10, 100}, {300, 44}});
  second.show(commands("cut:"), {{10, 200}, {300, 44}});
  first.hide();
  EXPECT_THAT(menu().titles(), ElementsAre("Cut"));
  second.hide();
  EXPECT_FALSE(menu().isVisible());
}

}  // namespace
}  // namespace desktop::uikit
