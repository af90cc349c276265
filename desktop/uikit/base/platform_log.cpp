// SPDX-License-Identifier: MIT
#include "desktop/uikit/base/platform_log.h"

#include "bridge/runtime/objc.h"
#include "desktop/platform.h"

namespace desktop::uikit {

std::vector<std::string>& platformLog() {
  static auto& made = *new std::vector<std::string>;
  return made;
}

void logLine(const std::string& line) {
  platformLog().push_back(line);
}

std::string nameOf(Object object) {
  return object ? std::string("<") + class_getName(object_getClass(object.get())) + ">" : "(nil)";
}

}  // namespace desktop::uikit
