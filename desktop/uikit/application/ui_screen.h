// SPDX-License-Identifier: MIT
//
// UIScreen: the one screen, with the size that it has now.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit/ui_view.h"

namespace desktop::uikit {

class UIScreen : public bridge::Bound<UIScreen, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();
  static bridge::UIScreen mainScreen();

 private:
  CGRect bounds() const;
  CGFloat scale() const;
};

}  // namespace desktop::uikit
