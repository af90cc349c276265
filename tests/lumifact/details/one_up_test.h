// SPDX-License-Identifier: MIT
//
// A single-photo view on the screen, in a navigation controller, with the default settings.
#pragma once

#include "lumifact/details/one_up_state.h"
#include "lumifact/state/current_settings.h"
#include "tests/desktop/uikit/application_test.h"
#include "tests/lumifact/details/one_up_host.h"
#include "tests/lumifact/views/foundation_test.h"

namespace lumifact {

class OneUpTest : public desktop::uikit::ApplicationTest {
 protected:
  OneUpTest() {
    useThePhonesFoundation();
    host::installOneUpHost();
    host::oneUpAnswers() = {};
    oneUpState() = {};
    settings = {};
  }
  ~OneUpTest() override {
    oneUpState() = {};
    host::oneUpAnswers() = {};
  }

  // A new single-photo view fills the window; it is loaded.
  void openPhoto() {
    controller = host::makeOneUpViewController();
    navigation = bridge::UINavigationController::withRoot(controller);
    window().setRootViewController(navigation);
    controller->view();
    desktop::uikit::application().prepareFrame();
  }
  bridge::NSArray rightItems() const { return controller->navigationItem().rightBarButtonItems(); }

  bridge::Owned<bridge::PUOneUpViewController> controller;
  bridge::Owned<bridge::UINavigationController> navigation;
};

}  // namespace lumifact
