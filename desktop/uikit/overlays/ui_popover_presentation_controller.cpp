// SPDX-License-Identifier: MIT
#include "desktop/uikit/overlays/ui_popover_presentation_controller.h"

#include "bridge/class_builder.h"

namespace desktop::uikit {

Class UIPopoverPresentationController::classObject() {
  using Popover = UIPopoverPresentationController;
  static const Class made =
      bridge::ClassBuilder<Popover>("UIPopoverPresentationController")
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

void UIPopoverPresentationController::setSourceView(bridge::UIView view) {
  _sourceView = bridge::Owned<bridge::UIView>::retain(view);
}

void UIPopoverPresentationController::setBarButtonItem(bridge::UIBarButtonItem item) {
  _barButtonItem = bridge::Owned<bridge::UIBarButtonItem>::retain(item);
}

}  // namespace desktop::uikit
