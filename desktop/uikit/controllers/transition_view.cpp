// SPDX-License-Identifier: MIT
#include "desktop/uikit/controllers/transition_view.h"

#include "bridge/class_builder.h"

namespace desktop::uikit {

Class TransitionView::classObject() {
  static const Class made = bridge::ClassBuilder<TransitionView>("UITransitionView").build();
  return made;
}

bridge::Owned<bridge::UIView> makeTransitionView(CGRect frame) {
  auto made = bridge::Owned<bridge::UIView>::adopt(bridge::send<bridge::UIView, "initWithFrame:">(
      bridge::send<id, "alloc">(TransitionView::classObject()), frame));
  made->setAutoresizingMask(bridge::flexibleWidth | bridge::flexibleHeight);
  return made;
}

}  // namespace desktop::uikit
