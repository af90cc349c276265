// SPDX-License-Identifier: MIT
#include "desktop/uikit/uikit.h"

#include "desktop/uikit/class_list.h"
#include "desktop/uikit/image_context.h"
#include "desktop/uikit/index_path.h"
#include "desktop/uikit/missing_messages.h"
#include "desktop/uikit/string_drawing.h"
#include "desktop/uikit/ui_view.h"

namespace desktop::uikit {

void registerUIKit() {
  static const bool registered = [] {
    addStringDrawing();
    addIndexPathMethods();
    registerClasses();
    addViewAnimations();
    provideImageContexts();
    answerMissingMessages();
    return true;
  }();
  static_cast<void>(registered);
}

}  // namespace desktop::uikit
