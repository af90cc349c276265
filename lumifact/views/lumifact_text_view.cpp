// SPDX-License-Identifier: MIT
#include "lumifact/views/lumifact_text_view.h"

#include "bridge/class_builder.h"

namespace lumifact {

Class LumifactTextView::classObject() {
  static const Class made =
      bridge::ClassBuilder<LumifactTextView>("LumifactTextView")
          .method<"canBecomeFirstResponder", &LumifactTextView::canBecomeFirstResponder>()
          .build();
  return made;
}

bridge::Owned<bridge::UITextView> LumifactTextView::make() {
  return bridge::Owned<bridge::UITextView>::adopt(
      bridge::send<bridge::UITextView, "init">(bridge::send<id, "alloc">(classObject())));
}

}  // namespace lumifact
