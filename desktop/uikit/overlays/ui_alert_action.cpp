// SPDX-License-Identifier: MIT
#include "desktop/uikit/overlays/ui_alert_action.h"

#include "bridge/class_builder.h"
#include "desktop/platform.h"

namespace desktop::uikit {

Class UIAlertActionState::classObject() {
  static const Class made =
      ClassBuilder<UIAlertActionState>("UIAlertAction")
          .classMethod<"actionWithTitle:style:handler:", &UIAlertActionState::make>()
          .method<"title", &UIAlertActionState::title>()
          .method<"style", &UIAlertActionState::style>()
          .method<"isEnabled", &UIAlertActionState::isEnabled>()
          .method<"setEnabled:", &UIAlertActionState::setEnabled>()
          .build();
  return made;
}

UIAlertAction UIAlertActionState::make(NSString title, NSInteger style,
                                       const BlockHeader* handler) {
  auto made = makeNew<UIAlertAction>();
  UIAlertActionState& action = of(made.get());
  action._title = copy(title);
  action._style = style;
  action._handler = Block<void(UIAlertAction)>::retain(handler);
  return made.autorelease();
}

}  // namespace desktop::uikit
