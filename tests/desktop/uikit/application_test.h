// SPDX-License-Identifier: MIT
//
// A fresh application for every test, with one window that fills the screen; time stands still
// until a test advances it.
#pragma once

#include <gtest/gtest.h>

#include "bridge/uikit.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/application/uikit.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/overlays/ui_menu_controller.h"

namespace desktop::uikit {

class ApplicationTest : public testing::Test {
 protected:
  ApplicationTest() {
    registerUIKit();
    makeWhatThereIsOneOf();
    resetApplication();
    const auto made = bridge::makeView<UIWindow>(rectOfSize(screen().size));
    made->makeKeyAndVisible();
    application().prepareFrame();
  }
  ~ApplicationTest() override { resetApplication(); }

  // These stay for the life of the process: whoever counts objects finds them there already.
  static void makeWhatThereIsOneOf() {
    UIApplication::sharedApplication();
    UIScreen::mainScreen();
    UIMenuControllerState::sharedMenuController();
  }

  static UIWindow window() { return UIWindow(application().windows.at(0)->get()); }

 private:
  const AutoreleasePool _pool;
};

}  // namespace desktop::uikit
