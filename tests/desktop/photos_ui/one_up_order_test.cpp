// SPDX-License-Identifier: MIT
//
// The order in which a single photo comes up, as an extension that hooks its classes sees it.
#include <gmock/gmock.h>

#include "bridge/hook.h"
#include "tests/desktop/photos_ui/one_up_screen.h"

namespace desktop::photos_ui {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string>& calls() {
  static auto& kept = *new std::vector<std::string>;
  return kept;
}

void note(SEL command) {
  calls().emplace_back(sel_getName(command));
}

id Layout_init(id self, SEL command) {
  note(command);
  return stock<&Layout_init>(self, command);
}
void OneUp_viewDidLoad(id self, SEL command) {
  note(command);
  stock<&OneUp_viewDidLoad>(self, command);
}
void OneUp_setTilingView(id self, SEL command, id view) {
  stock<&OneUp_setTilingView>(self, command, view);
  note(command);
  EXPECT_EQ(objectField(Object(self), "_tilingView"), Object(view));
}
void OneUp_viewWillAppear(id self, SEL command, BOOL animated) {
  note(command);
  stock<&OneUp_viewWillAppear>(self, command, animated);
}
void OneUp_viewWillDisappear(id self, SEL command, BOOL animated) {
  note(command);
  stock<&OneUp_viewWillDisappear>(self, command, animated);
}
void Bars_updateBars(id self, SEL command) {
  note(command);
  stock<&Bars_updateBars>(self, command);
}

constinit const HookRow rows[] = {
    replaced<"PUOneUpTilingLayout", "init", &Layout_init>,
    replaced<"PUOneUpViewController", "viewDidLoad", &OneUp_viewDidLoad>,
    replaced<"PUOneUpViewController", "_setTilingView:", &OneUp_setTilingView>,
    replaced<"PUOneUpViewController", "viewWillAppear:", &OneUp_viewWillAppear>,
    replaced<"PUOneUpViewController", "viewWillDisappear:", &OneUp_viewWillDisappear>,
    replaced<"PUOneUpBarsController", "updateBars", &Bars_updateBars>,
};

class OneUpOrderTest : public OneUpTest {
 protected:
  OneUpOrderTest() {
    static const bool isHooked = (applyHooks(rows), true);
    EXPECT_TRUE(isHooked);
    addPictures(3);
    open();
    calls().clear();
  }
  // What was called since the last time.
  static std::vector<std::string> callsSince() { return std::exchange(calls(), {}); }
};

TEST_F(OneUpOrderTest, MakesTheLayoutBeforeTheViewAndTheBarsLast) {
  show(1);
  auto all = callsSince();
  ASSERT_GE(all.size(), 5U);
  all.resize(5);
  EXPECT_THAT(
      all, ElementsAre("init", "viewDidLoad", "_setTilingView:", "viewWillAppear:", "updateBars"));
}

TEST_F(OneUpOrderTest, UpdatesTheBarsWithEachPageAndWhenTheyComeAndGo) {
  show(1);
  callsSince();
  act(OneUpAction::next);
  EXPECT_THAT(callsSince(), ElementsAre("updateBars"));
  tap(screenMiddle);
  EXPECT_THAT(callsSince(), ElementsAre("updateBars"));
  tap(screenMiddle);
  EXPECT_THAT(callsSince(), ElementsAre("updateBars"));
  settle(5);
  EXPECT_THAT(callsSince(), IsEmpty());
}

TEST_F(OneUpOrderTest, ComesUpAgainWithEachOpening) {
  show(1);
  callsSince();
  send<id, "popViewControllerAnimated:">(navigation().self(), true);
  settle();
  EXPECT_THAT(callsSince(), ElementsAre("viewWillDisappear:"));
  show(0);
  EXPECT_EQ(callsSince().at(1), "viewDidLoad");
}

TEST_F(OneUpOrderTest, TellsExtensionsThatAPreviewIsOne) {
  peek(1);
  EXPECT_TRUE((send<bool, "isPresentedForPreview">(oneUp().self())));
  const auto all = callsSince();
  EXPECT_THAT(all, ElementsAre("init", "viewDidLoad", "_setTilingView:", "viewWillAppear:"));
}

}  // namespace
}  // namespace desktop::photos_ui
