// SPDX-License-Identifier: MIT
#include "desktop/uikit/controllers/transition_view.h"

#include "bridge/class_builder.h"
#include "desktop/platform.h"

namespace desktop::uikit {

Class TransitionView::classObject() {
  static const Class made = ClassBuilder<TransitionView>("UITransitionView").build();
  return made;
}

Owned<UIView> makeTransitionView(CGRect frame) {
  auto made = makeWith<UIView, "initWithFrame:">(TransitionView::classObject(), frame);
  made->setAutoresizingMask(flexibleWidth | flexibleHeight);
  return made;
}

}  // namespace desktop::uikit
