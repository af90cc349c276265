// SPDX-License-Identifier: MIT
//
// UIScreen: the one screen, with the size that it has now.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_view.h"
#include "desktop/platform.h"

namespace desktop::uikit {

class UIScreenState : public Bound<UIScreenState, NSObject, UIScreen> {
 public:
  using Bound::Bound;
  static Class classObject();
  static UIScreen mainScreen();

 private:
  CGRect bounds() const;
  CGFloat scale() const;
};

}  // namespace desktop::uikit
