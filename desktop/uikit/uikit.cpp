// SPDX-License-Identifier: MIT
#include "desktop/uikit/uikit.h"

#include "desktop/uikit/string_drawing.h"
#include "desktop/uikit/ui_font.h"

namespace desktop::uikit {

void registerUIKit() {
  static const bool registered = [] {
    addStringDrawing();
    return UIFont::classObject() != nullptr;
  }();
  static_cast<void>(registered);
}

}  // namespace desktop::uikit
