// SPDX-License-Identifier: MIT
//
// The view that a presented controller's view moves in.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit/ui_view.h"

namespace desktop::uikit {

class TransitionView : public bridge::Bound<TransitionView, bridge::UIView> {
 public:
  using Bound::Bound;
  static Class classObject();
};

// A new one that keeps filling what it stands in; +1.
bridge::Owned<bridge::UIView> makeTransitionView(CGRect frame);

}  // namespace desktop::uikit
