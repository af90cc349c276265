// SPDX-License-Identifier: MIT
#include "desktop/uikit/base/platform_log.h"

#include "bridge/runtime/objc.h"
#include "desktop/uikit/application/stage.h"

namespace desktop::uikit {

void logLine(const std::string& line) {
  stage().log.push_back(line);
}

std::string nameOf(bridge::Object object) {
  return object ? std::string("<") + class_getName(object_getClass(object.get())) + ">" : "(nil)";
}

}  // namespace desktop::uikit
