// SPDX-License-Identifier: MIT
//
// A fresh stage for every test, with one window that fills it; time stands still until a test
// advances the stage.
#pragma once

#include <gtest/gtest.h>

#include "bridge/uikit.h"
#include "desktop/uikit/application/stage.h"
#include "desktop/uikit/application/uikit.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/handles.h"
#include "desktop/uikit/overlays/ui_menu_controller.h"

namespace desktop::uikit {

class StageTest : public testing::Test {
 protected:
  StageTest() {
    registerUIKit();
    makeWhatThereIsOneOf();
    resetStage();
    const auto made = bridge::makeView<handles::UIWindow>(rectOfSize(stage().screenSize));
    made->makeKeyAndVisible();
    stage().prepareFrame();
  }
  ~StageTest() override { resetStage(); }

  // These stay for the life of the process: whoever counts objects finds them there already.
  static void makeWhatThereIsOneOf() {
    bridge::UIApplication::sharedApplication();
    bridge::UIScreen::mainScreen();
    UIMenuController::sharedMenuController();
  }

  static handles::UIWindow window() { return handles::UIWindow(stage().windows.at(0)->get()); }

 private:
  const bridge::AutoreleasePool _pool;
};

}  // namespace desktop::uikit
