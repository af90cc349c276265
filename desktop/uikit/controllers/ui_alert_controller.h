// SPDX-License-Identifier: MIT
//
// UIAlertController: a message with actions to choose from, in a box over what is shown or in a
// sheet at the bottom.
#pragma once

#include "bridge/bound.h"
#include "desktop/uikit/base/object_list.h"
#include "desktop/uikit/controllers/ui_view_controller.h"
#include "desktop/uikit/overlays/alert_view.h"

namespace desktop::uikit {

class UIAlertController : public bridge::Bound<UIAlertController, bridge::UIViewController> {
 public:
  using Bound::Bound;
  static Class classObject();

  enum Style : NSInteger { actionSheet = 0, alert = 1 };

  bridge::NSString title() const { return UIViewController::of(self()).title(); }
  bridge::NSString message() const { return _message; }
  NSInteger preferredStyle() const { return _style; }
  const ObjectList<bridge::UIAlertAction>& actions() const { return _actions; }
  // Chooses an action as a press on its button does: the alert goes, then the handler is called.
  void choose(bridge::UIAlertAction action);

 private:
  static bridge::UIAlertController make(bridge::NSString title, bridge::NSString message,
                                        NSInteger style);
  void setMessage(bridge::NSString message);
  void addAction(bridge::UIAlertAction action);
  bridge::NSArray actionsArray() const { return arrayOf(_actions); }
  bridge::UIAlertAction preferredAction() const { return _preferred; }
  void setPreferredAction(bridge::UIAlertAction action);
  NSInteger modalPresentationStyle() const { return custom; }
  void loadView();
  void viewWillAppear(bool animated);
  void showPresented(bool shown);
  Seconds presentationDuration() const;
  void cancel();

  bridge::Owned<bridge::NSString> _message;
  NSInteger _style = alert;
  ObjectList<bridge::UIAlertAction> _actions;
  bridge::Owned<bridge::UIAlertAction> _preferred;
};

}  // namespace desktop::uikit
