// SPDX-License-Identifier: MIT
//
// LumifactPopUpViewController: a message in a white box over a dimmed backdrop. A view, whatever
// its name says.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit/ui_controls.h"
#include "lumifact/platform.h"

namespace lumifact {

// Once shown it belongs to its host view, and takes itself away when a touch on it ends.
//
//   LumifactPopUpViewController::show(view, message);
class LumifactPopUpViewController : public Bound<LumifactPopUpViewController, UIView> {
 public:
  using Bound::Bound;
  static Class classObject();

  // Covers the view with a new overlay that zooms in.
  static void show(UIView host, NSString message);

  UIView initWithFrame(CGRect frame);
  void showInView(UIView host, NSString message, bool animated);
  void layoutSubviews();
  void showAnimate();
  // Zooms out, and leaves the host view when that has finished; an interrupted one stays,
  // invisible.
  void removeAnimate();
  void touchesBegan(NSSet touches, UIEvent event);
  void touchesEnded(NSSet touches, UIEvent event);
  bool canBecomeFirstResponder() const { return true; }

  UITextView textView() const { return _textView; }
  void setTextView(UITextView view);
  bool touchDown() const { return _touchDown; }
  void setTouchDown(bool touchDown) { _touchDown = touchDown; }

 private:
  void makeBox();
  void castShadow() const;

  bool _touchDown = false;  // a touch began beside the box; nobody asks
  Owned<UITextView> _textView;
};

}  // namespace lumifact
