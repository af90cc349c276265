// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/one_up/one_up.h"

#include "desktop/photos_ui/one_up/pu_one_up_view_controller.h"

namespace desktop::photos_ui {

bridge::Owned<bridge::UIViewController> makeOneUp(std::shared_ptr<const ItemList> items,
                                                  std::size_t index, Presentation presentation) {
  return PUOneUpViewController::make(std::move(items), index, presentation);
}

bool performOneUpAction(bridge::UIViewController controller, OneUpAction action) {
  return bridge::isKindOf(controller, PUOneUpViewController::classObject()) &&
         PUOneUpViewController::of(controller).perform(action);
}

}  // namespace desktop::photos_ui
