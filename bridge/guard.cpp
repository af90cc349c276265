// SPDX-License-Identifier: MIT
#include "bridge/guard.h"

#include "bridge/log.h"

namespace bridge {

void logCaught(const char* reason) noexcept {
  try {
    logDebug("Guard", 0, reason);
  } catch (...) {  // no memory for the line: it is dropped
  }
}

}  // namespace bridge
