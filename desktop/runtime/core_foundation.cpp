// SPDX-License-Identifier: MIT
#include "bridge/corefoundation.h"
#include "bridge/runtime/owned.h"
#include "desktop/platform.h"

double kCFCoreFoundationVersionNumber = 1556.0;

void CFRelease(const void* object) {
  bridge::Owned<bridge::Object>::adopt(bridge::Object(static_cast<id>(const_cast<void*>(object))))
      .reset();
}
