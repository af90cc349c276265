// SPDX-License-Identifier: MIT
//
// UIPopoverPresentationController: where a popover would point. On the phone's width what would be
// one is shown as a sheet, so the values are only kept.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_controllers.h"
#include "desktop/platform.h"

namespace desktop::uikit {

class UIPopoverPresentationControllerState
    : public Bound<UIPopoverPresentationControllerState, NSObject,
                   UIPopoverPresentationController> {
 public:
  using Bound::Bound;
  static Class classObject();

  UIView sourceView() const { return _sourceView; }
  CGRect sourceRect() const { return _sourceRect; }  // in the source view's coordinates
  UIBarButtonItem barButtonItem() const { return _barButtonItem; }

 private:
  void setSourceView(UIView view);
  void setSourceRect(CGRect rect) { _sourceRect = rect; }
  void setBarButtonItem(UIBarButtonItem item);
  NSUInteger permittedArrowDirections() const { return _arrows; }
  void setPermittedArrowDirections(NSUInteger directions) { _arrows = directions; }
  NSObject delegate() const { return _delegate; }
  void setDelegate(NSObject delegate) { _delegate = delegate; }

  Owned<UIView> _sourceView;
  Owned<UIBarButtonItem> _barButtonItem;
  NSObject _delegate;  // borrowed
  CGRect _sourceRect;
  NSUInteger _arrows = 15;  // any
};

}  // namespace desktop::uikit
