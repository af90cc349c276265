// SPDX-License-Identifier: MIT
//
// How an alert or an action sheet looks: a dark backdrop over everything, the box with title and
// message that scroll where they are too long, and a button for each action.
#pragma once

#include <functional>
#include <vector>

#include "bridge/bound.h"
#include "bridge/uikit/ui_controllers.h"
#include "desktop/uikit/base/object_list.h"

namespace desktop::uikit {

class AlertView : public bridge::Bound<AlertView, bridge::UIView> {
 public:
  explicit AlertView(id self);
  static Class classObject();

  struct Contents {
    bridge::NSString title;    // nil takes no room
    bridge::NSString message;  // nil takes no room
    ObjectList<bridge::UIAlertAction> actions;
    bridge::UIAlertAction preferred;  // nil where none
    bool isSheet = false;
  };
  static bridge::Owned<bridge::UIView> make(CGRect frame);
  // Shows these, with buttons that call `choose`; a tap beside a sheet calls `cancel`.
  void show(const Contents& contents, std::function<void(bridge::UIAlertAction)> choose,
            std::function<void()> cancel);

  bridge::UIView box() const { return _box; }
  const ObjectList<bridge::UIControl>& buttons() const { return _buttons; }  // from the first on
  // Animated: how it stands when it is shown, before it is, and when it goes.
  enum class Stance { coming, shown, gone };
  void take(Stance stance);

 private:
  bridge::UIView initWithFrame(CGRect frame);
  void layoutSubviews();
  void touchesEnded(bridge::NSSet touches, bridge::UIEvent event);
  void addButton(bridge::UIAlertAction action, bool isSemibold);
  CGFloat layOutText(CGFloat width) const;
  void arrange();
  void arrangeButtons(CGFloat top, CGFloat width);
  CGFloat buttonsHeight(CGFloat width) const;
  bool isSideBySide(CGFloat width) const;

  bridge::Owned<bridge::UIView> _backdrop;
  bridge::Owned<bridge::UIView> _box;
  bridge::Owned<bridge::UIView> _cancelBox;  // of a sheet: its cancel button stands by itself
  bridge::Owned<bridge::UIView> _text;       // scrolls
  bridge::Owned<bridge::UILabel> _title;
  bridge::Owned<bridge::UILabel> _message;
  ObjectList<bridge::UIControl> _buttons;
  ObjectList<bridge::UIView> _lines;
  std::vector<bool> _isCancel;
  std::function<void(bridge::UIAlertAction)> _choose;
  std::function<void()> _cancel;
  bool _isSheet = false;
};

}  // namespace desktop::uikit
