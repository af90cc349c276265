// SPDX-License-Identifier: MIT
#include "bridge/corefoundation.h"
#include "bridge/runtime/send.h"
#include "desktop/platform.h"

double kCFCoreFoundationVersionNumber = 1556.0;

void CFRelease(const void* object) {
  bridge::send<void, "release">(static_cast<id>(const_cast<void*>(object)));
}
