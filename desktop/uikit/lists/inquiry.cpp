// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/inquiry.h"

namespace desktop::uikit {

void Inquiry::outdate() {
  _isOutdated = true;
  ++_generation;
}

}  // namespace desktop::uikit
