// SPDX-License-Identifier: MIT
//
// A controller that writes down what it is told, and fingers for pressing what can be read.
#pragma once

#include <gmock/gmock.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "bridge/bound.h"
#include "desktop/uikit/controllers/ui_view_controller.h"
#include "desktop/uikit/views/ui_view.h"
#include "tests/desktop/uikit/application_test.h"

namespace desktop::uikit {

// Tells its name and what happens: "A willAppear". Its view is white.
class ProbeController : public Bound<ProbeController, UIViewController> {
 public:
  using Bound::Bound;
  static Class classObject();
  static Owned<UIViewController> make(std::string name);

  static std::vector<std::string> calls;  // of all of them

  std::function<void()> onPress;      // "press:"
  std::function<void()> onDisappear;  // viewWillDisappear:
  Object sender;                      // of the last press

 private:
  void note(const char* what) { calls.push_back(_name + " " + what); }
  void viewDidLoad();
  void viewWillAppear(bool animated);
  void viewDidAppear(bool animated);
  void viewWillDisappear(bool animated);
  void viewDidDisappear(bool animated);
  void willBecome(CGSize size, Object coordinator);
  void press(Object from);

  std::string _name;
};

class ControllerTest : public ApplicationTest {
 protected:
  using Calls = std::vector<std::string>;

  ControllerTest() { ProbeController::calls.clear(); }
  ~ControllerTest() override { ProbeController::calls.clear(); }

  static Calls takeCalls() { return std::exchange(ProbeController::calls, {}); }
  // A controller that fills the window and has appeared; its calls are taken.
  static Owned<UIViewController> showRoot(const Owned<UIViewController>& root);

  static void wait(Seconds time) { application().advance(time); }
  static void tap(CGPoint point);
  // In the middle of the view.
  static void tap(UIView view);
  // The first view that shows this text and can be seen, from the front; nil where there is none.
  static UIView viewWithText(std::string_view text);
  static void tap(std::string_view text);
  static bool isShown(std::string_view text) { return static_cast<bool>(viewWithText(text)); }
};

// A frame on the screen as numbers, which tell more when they differ.
std::vector<double> onScreen(UIView view);
std::vector<double> numbers(CGRect rect);

}  // namespace desktop::uikit
