// SPDX-License-Identifier: MIT
#include "desktop/uikit/overlays/ui_alert_action.h"

#include "bridge/class_builder.h"

namespace desktop::uikit {

using bridge::NSString;
using bridge::Owned;

Class UIAlertAction::classObject() {
  static const Class made =
      bridge::ClassBuilder<UIAlertAction>("UIAlertAction")
          .classMethod<"actionWithTitle:style:handler:", &UIAlertAction::make>()
          .method<"title", &UIAlertAction::title>()
          .method<"style", &UIAlertAction::style>()
          .method<"isEnabled", &UIAlertAction::isEnabled>()
          .method<"setEnabled:", &UIAlertAction::setEnabled>()
          .build();
  return made;
}

bridge::UIAlertAction UIAlertAction::make(NSString title, NSInteger style,
                                          const bridge::BlockHeader* handler) {
  auto made = bridge::makeNew<bridge::UIAlertAction>();
  UIAlertAction& action = of(made.get());
  action._title = Owned<NSString>::adopt(bridge::send<NSString, "copy">(title));
  action._style = style;
  action._handler = bridge::Block<void(bridge::UIAlertAction)>::retain(handler);
  return made.autorelease();
}

}  // namespace desktop::uikit
