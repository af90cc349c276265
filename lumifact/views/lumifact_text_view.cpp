// SPDX-License-Identifier: MIT
#include "lumifact/views/lumifact_text_view.h"

#include "bridge/class_builder.h"

namespace lumifact {

Class LumifactTextView::classObject() {
  static const Class made =
      ClassBuilder<LumifactTextView>("LumifactTextView")
          .method<"canBecomeFirstResponder", &LumifactTextView::canBecomeFirstResponder>()
          .build();
  return made;
}

Owned<UITextView> LumifactTextView::make() {
  return makeNew<UITextView>(classObject());
}

}  // namespace lumifact
