// SPDX-License-Identifier: MIT
//
// LumifactTextView: a text view that says that it can become first responder.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit/ui_controls.h"
#include "lumifact/platform.h"

namespace lumifact {

class LumifactTextView : public Bound<LumifactTextView, UITextView> {
 public:
  using Bound::Bound;
  static Class classObject();
  static Owned<UITextView> make();

  bool canBecomeFirstResponder() const { return true; }
};

}  // namespace lumifact
