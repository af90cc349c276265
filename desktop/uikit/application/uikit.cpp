// SPDX-License-Identifier: MIT
#include "desktop/uikit/application/uikit.h"

#include "desktop/uikit/application/class_list.h"
#include "desktop/uikit/base/missing_messages.h"
#include "desktop/uikit/graphics/image_context.h"
#include "desktop/uikit/lists/index_path.h"
#include "desktop/uikit/text/string_drawing.h"

namespace desktop::uikit {

void registerUIKit() {
  static const bool registered = [] {
    addStringDrawing();
    addIndexPathMethods();
    registerClasses();
    provideImageContexts();
    answerMissingMessages();
    return true;
  }();
  static_cast<void>(registered);
}

}  // namespace desktop::uikit
