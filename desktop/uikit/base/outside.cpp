// SPDX-License-Identifier: MIT
#include "desktop/uikit/base/outside.h"

namespace desktop::uikit {

Outside& outside() {
  static auto& made = *new Outside;
  return made;
}

}  // namespace desktop::uikit
