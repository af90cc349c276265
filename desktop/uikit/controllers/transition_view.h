// SPDX-License-Identifier: MIT
//
// The view that a presented controller's view moves in.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_view.h"
#include "desktop/platform.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {

class TransitionView : public Bound<TransitionView, UIViewState> {
 public:
  using Bound::Bound;
  static Class classObject();
};

// A new one that keeps filling what it stands in; +1.
Owned<UIView> makeTransitionView(CGRect frame);

}  // namespace desktop::uikit
