// SPDX-License-Identifier: MIT
//
// LumifactPopUpViewController: a message in a white box over a dimmed backdrop. A view, whatever
// its name says.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit/ui_controls.h"

namespace lumifact {

// Once shown it belongs to its host view, and takes itself away when a touch on it ends.
//
//   LumifactPopUpViewController::show(view, message);
class LumifactPopUpViewController
    : public bridge::Bound<LumifactPopUpViewController, bridge::UIView> {
 public:
  using Bound::Bound;
  static Class classObject();

  // Covers the view with a new overlay that zooms in.
  static void show(bridge::UIView host, bridge::NSString message);

  bridge::UIView initWithFrame(CGRect frame);
  void showInView(bridge::UIView host, bridge::NSString message, bool animated);
  void layoutSubviews();
  void showAnimate();
  // Zooms out, and leaves the host view when that has finished; an interrupted one stays,
  // invisible.
  void removeAnimate();
  void touchesBegan(bridge::NSSet touches, bridge::UIEvent event);
  void touchesEnded(bridge::NSSet touches, bridge::UIEvent event);
  bool canBecomeFirstResponder() const { return true; }

  bridge::UITextView textView() const { return _textView; }
  void setTextView(bridge::UITextView view);
  bool touchDown() const { return _touchDown; }
  void setTouchDown(bool touchDown) { _touchDown = touchDown; }

 private:
  void makeBox();
  void castShadow() const;

  bool _touchDown = false;  // a touch began beside the box; nobody asks
  bridge::Owned<bridge::UITextView> _textView;
};

}  // namespace lumifact
