// SPDX-License-Identifier: MIT
#include "desktop/uikit/overlays/ui_popover_presentation_controller.h"

#include "bridge/class_builder.h"
#include "desktop/platform.h"

namespace desktop::uikit {

Class UIPopoverPresentationControllerState::classObject() {
  using Popover = UIPopoverPresentationControllerState;
  static const Class made =
      ClassBuilder<Popover>("UIPopoverPresentationController")
          .method<"sourceView", &Popover::sourceView>()
          .method<"setSourceView:", &Popover::setSourceView>()
          .method<"sourceRect", &Popover::sourceRect>()
          .method<"setSourceRect:", &Popover::setSourceRect>()
          .method<"barButtonItem", &Popover::barButtonItem>()
          .method<"setBarButtonItem:", &Popover::setBarButtonItem>()
          .method<"permittedArrowDirections", &Popover::permittedArrowDirections>()
          .method<"setPermittedArrowDirections:", &Popover::setPermittedArrowDirections>()
          .method<"delegate", &Popover::delegate>()
          .method<"setDelegate:", &Popover::setDelegate>()
          .build();
  return made;
}

void UIPopoverPresentationControllerState::setSourceView(UIView view) {
  _sourceView = Owned<UIView>::retain(view);
}

void UIPopoverPresentationControllerState::setBarButtonItem(UIBarButtonItem item) {
  _barButtonItem = Owned<UIBarButtonItem>::retain(item);
}

}  // namespace desktop::uikit
