// SPDX-License-Identifier: MIT
//
// How an alert or an action sheet looks: a dark backdrop over everything, the box with title and
// message that scroll where they are too long, and a button for each action.
#pragma once

#include <functional>
#include <vector>
#include "desktop/uikit/views/ui_view.h"

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_controllers.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/object_list.h"

namespace desktop::uikit {

class AlertView : public Bound<AlertView, UIViewState> {
 public:
  explicit AlertView(id self);
  static Class classObject();

  struct Contents {
    NSString title;    // nil takes no room
    NSString message;  // nil takes no room
    ObjectList<UIAlertAction> actions;
    UIAlertAction preferred;  // nil where none
    bool isSheet = false;
  };
  static Owned<UIView> make(CGRect frame);
  // Shows these, with buttons that call `choose`; a tap beside a sheet calls `cancel`.
  void show(const Contents& contents, std::function<void(UIAlertAction)> choose,
            std::function<void()> cancel);

  UIView box() const { return _box; }
  const ObjectList<UIControl>& buttons() const { return _buttons; }  // from the first on
  // Animated: how it stands when it is shown, before it is, and when it goes.
  enum class Stance { coming, shown, gone };
  void take(Stance stance);

 private:
  UIView initWithFrame(CGRect frame);
  void layoutSubviews();
  void touchesEnded(NSSet touches, UIEvent event);
  void addButton(UIAlertAction action, bool isSemibold);
  CGFloat layOutText(CGFloat width) const;
  void arrange();
  void arrangeButtons(CGFloat top, CGFloat width);
  CGFloat buttonsHeight(CGFloat width) const;
  bool isSideBySide(CGFloat width) const;

  Owned<UIView> _backdrop;
  Owned<UIView> _box;
  Owned<UIView> _cancelBox;  // of a sheet: its cancel button stands by itself
  Owned<UIView> _text;       // scrolls
  Owned<UILabel> _title;
  Owned<UILabel> _message;
  ObjectList<UIControl> _buttons;
  ObjectList<UIView> _lines;
  std::vector<bool> _isCancel;
  std::function<void(UIAlertAction)> _choose;
  std::function<void()> _cancel;
  bool _isSheet = false;
};

}  // namespace desktop::uikit
