// SPDX-License-Identifier: MIT
#include "desktop/faces/foundation/foundation_options.h"

namespace desktop::faces {

FoundationOptions& currentOptions() {
  static auto& current = *new FoundationOptions;
  return current;
}

}  // namespace desktop::faces
