// SPDX-License-Identifier: MIT
//
// Handles of the platform's classes that only the platform itself talks to by message.
#pragma once

#include "bridge/uikit.h"

namespace desktop::uikit::handles {

struct UIWindow : bridge::UIView {
  using bridge::UIView::UIView;
  static Class classObject() { return bridge::classNamed<"UIWindow">(); }

  bridge::UIViewController rootViewController() const {
    return bridge::send<bridge::UIViewController, "rootViewController">(*this);
  }
  void setRootViewController(bridge::UIViewController controller) const {
    bridge::send<void, "setRootViewController:">(*this, controller);
  }
  void makeKeyAndVisible() const { bridge::send<void, "makeKeyAndVisible">(*this); }
};

struct UIScrollView : bridge::UIView {
  using bridge::UIView::UIView;
  static Class classObject() { return bridge::classNamed<"UIScrollView">(); }

  CGPoint contentOffset() const { return bridge::send<CGPoint, "contentOffset">(*this); }
  void setContentOffset(CGPoint offset) const {
    bridge::send<void, "setContentOffset:">(*this, offset);
  }
  CGSize contentSize() const { return bridge::send<CGSize, "contentSize">(*this); }
  void setContentSize(CGSize size) const { bridge::send<void, "setContentSize:">(*this, size); }
};

}  // namespace desktop::uikit::handles
