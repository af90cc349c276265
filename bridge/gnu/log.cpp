// SPDX-License-Identifier: MIT
#include "bridge/log.h"

#include "bridge/gnu/debug_log_sink.h"

namespace bridge {

void logDebug(const char* source, int line, const std::string& text) {
  desktop_debugLog("[%{public}s:%{public}d] %{public}@", source, line, text.c_str());
}

}  // namespace bridge
