// SPDX-License-Identifier: MIT
//
// UIAlertController: a message with actions to choose from, in a box over what is shown or in a
// sheet at the bottom.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/object_list.h"
#include "desktop/uikit/controllers/ui_view_controller.h"
#include "desktop/uikit/overlays/alert_view.h"

namespace desktop::uikit {

class UIAlertControllerState
    : public Bound<UIAlertControllerState, UIViewControllerState, UIAlertController> {
 public:
  using Bound::Bound;
  static Class classObject();

  enum Style : NSInteger { actionSheet = 0, alert = 1 };

  NSString title() const { return UIViewControllerState::title(); }
  NSString message() const { return _message; }
  NSInteger preferredStyle() const { return _style; }
  const ObjectList<UIAlertAction>& actions() const { return _actions; }
  // Chooses an action as a press on its button does: the alert goes, then the handler is called.
  void choose(UIAlertAction action);

 private:
  static UIAlertController make(NSString title, NSString message, NSInteger style);
  void setMessage(NSString message);
  void addAction(UIAlertAction action);
  NSArray actionsArray() const { return arrayOf(_actions); }
  UIAlertAction preferredAction() const { return _preferred; }
  void setPreferredAction(UIAlertAction action);
  NSInteger modalPresentationStyle() const { return custom; }
  void loadView();
  void viewWillAppear(bool animated);
  void showPresented(bool shown);
  Seconds presentationDuration() const;
  void cancel();

  Owned<NSString> _message;
  NSInteger _style = alert;
  ObjectList<UIAlertAction> _actions;
  Owned<UIAlertAction> _preferred;
};

}  // namespace desktop::uikit
