// SPDX-License-Identifier: MIT
//
// UIPopoverPresentationController: where a popover would point. On the phone's width what would be
// one is shown as a sheet, so the values are only kept.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit/ui_controllers.h"

namespace desktop::uikit {

class UIPopoverPresentationController
    : public bridge::Bound<UIPopoverPresentationController, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();

  bridge::UIView sourceView() const { return _sourceView; }
  CGRect sourceRect() const { return _sourceRect; }  // in the source view's coordinates
  bridge::UIBarButtonItem barButtonItem() const { return _barButtonItem; }

 private:
  void setSourceView(bridge::UIView view);
  void setSourceRect(CGRect rect) { _sourceRect = rect; }
  void setBarButtonItem(bridge::UIBarButtonItem item);
  NSUInteger permittedArrowDirections() const { return _arrows; }
  void setPermittedArrowDirections(NSUInteger directions) { _arrows = directions; }
  bridge::NSObject delegate() const { return _delegate; }
  void setDelegate(bridge::NSObject delegate) { _delegate = delegate; }

  bridge::Owned<bridge::UIView> _sourceView;
  bridge::Owned<bridge::UIBarButtonItem> _barButtonItem;
  bridge::NSObject _delegate;  // borrowed
  CGRect _sourceRect;
  NSUInteger _arrows = 15;  // any
};

}  // namespace desktop::uikit
